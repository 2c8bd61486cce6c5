#include "toolkit/OpenQuestions.h"

#include "toolkit/DialogRegistry.h"
#include "toolkit/ZOLDialog.h"

#include <algorithm>

namespace trellis {

namespace {

// The window that holds a dialog, and the windows that own that one.
std::vector<long> WindowsUpFrom(const ZOLDialog* dialog) {
    std::vector<long> windows;
    while (dialog) {
        const ZOLDialog* window = dialog->GetHoldingWindow();
        if (!window)
            break;
        windows.push_back(window->GetNumber());
        dialog = window->GetOwner();
    }
    return windows;
}

} // namespace

OpenQuestions& OpenQuestions::Instance() {
    static OpenQuestions questions;
    return questions;
}

OpenQuestions::Scope::Scope(const ZOLDialog& box, const ZOLDialog* over) : _box(box.GetNumber()) {
    Instance()._questions.push_back({_box, WindowsUpFrom(over), std::nullopt});
}

OpenQuestions::Scope::~Scope() {
    std::erase_if(Instance()._questions, [this](const Question& question) { return question.box == _box; });
}

bool OpenQuestions::Scope::IsAnswered() const {
    return Instance().Find(_box)->answer.has_value();
}

int OpenQuestions::Scope::GetAnswer() const {
    return Instance().Find(_box)->answer.value_or(0);
}

const OpenQuestions::Question* OpenQuestions::Find(long box) const {
    const auto found = std::find_if(_questions.begin(), _questions.end(),
                                    [box](const Question& question) { return question.box == box; });
    return found == _questions.end() ? nullptr : &*found;
}

bool OpenQuestions::Blocks(const ZOLDialog& dialog) const {
    const ZOLDialog* window = dialog.GetHoldingWindow();
    if (!window)
        return false;
    if (DialogRegistry::Instance().IsBehindModal(*window))
        return true;
    const long number = window->GetNumber();
    return std::any_of(_questions.begin(), _questions.end(), [&](const Question& question) {
        const bool isUnderAnother = question.box == number && &question != &_questions.back();
        return isUnderAnother || std::find(question.disabled.begin(), question.disabled.end(), number) !=
                                     question.disabled.end();
    });
}

bool OpenQuestions::Answer(const ZOLDialog& box, int answer) {
    const auto found = std::find_if(_questions.begin(), _questions.end(), [&box](const Question& question) {
        return question.box == box.GetNumber();
    });
    if (found == _questions.end())
        return false;
    if (!found->answer)
        found->answer = answer;
    return true;
}

} // namespace trellis
