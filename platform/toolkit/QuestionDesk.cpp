#include "toolkit/QuestionDesk.h"

#include "toolkit/BusyCursor.h"
#include "toolkit/CallbackScope.h"
#include "toolkit/OpenQuestions.h"
#include "toolkit/ToolkitView.h"
#include "toolkit/ZOLDialog.h"

#include <algorithm>
#include <utility>

namespace trellis {

namespace {

constexpr int nobodyAnswers = -1;
// Nobody takes the messages of a window that works for days.
constexpr std::size_t MostKept = 1000;

bool Offers(const ZOLShownMessage& message, int answer) {
    return answer == 0 ||
           std::find(message.buttons.begin(), message.buttons.end(), answer) != message.buttons.end();
}

} // namespace

QuestionDesk& QuestionDesk::Instance() {
    static QuestionDesk desk;
    return desk;
}

int QuestionDesk::Ask(const ZOLDialog& box, const ZOLDialog* over, const ZOLShownMessage& message) {
    const CallbackScope scope;
    const OpenQuestions::Scope question(box, over);
    const BusyCursor::LiftedScope lifted;
    const auto record = std::make_shared<ZOLShownMessage>(message);
    _shown.push_back(record);
    if (_shown.size() > MostKept)
        _shown.pop_front();

    if (ToolkitView* view = ToolkitView::Current()) {
        view->RunUntil([&question] { return question.IsAnswered(); });
        return record->answer = question.GetAnswer();
    }
    const int found = FindAnswer(message);
    if (question.IsAnswered()) // by a verb of the asker, on the box itself
        return record->answer = question.GetAnswer();
    record->wasExpected = found != nobodyAnswers;
    return record->answer = std::max(found, 0);
}

int QuestionDesk::FindAnswer(const ZOLShownMessage& message) {
    if (!message.isQuestion)
        return 1;
    int answer = nobodyAnswers;
    if (!_ready.empty()) {
        answer = _ready.front();
        _ready.pop_front();
    } else if (_asker) {
        answer = AskTheAsker(message);
    }
    return Offers(message, answer) ? answer : nobodyAnswers;
}

int QuestionDesk::AskTheAsker(const ZOLShownMessage& message) {
    const Asker asker = _asker; // it may set another one while it runs
    try {
        return asker(message);
    } catch (...) {
        if (!_pendingException)
            _pendingException = std::current_exception();
        return 0;
    }
}

void QuestionDesk::LayReady(const std::vector<int>& answers) {
    if (answers.empty())
        _ready.clear();
    _ready.insert(_ready.end(), answers.begin(), answers.end());
}

std::vector<ZOLShownMessage> QuestionDesk::TakeMessages() {
    std::vector<ZOLShownMessage> messages;
    for (const auto& shown : std::exchange(_shown, {}))
        messages.push_back(*shown);
    return messages;
}

} // namespace trellis
