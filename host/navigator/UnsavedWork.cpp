#include "navigator/UnsavedWork.h"

#include "model/DatabaseSession.h"
#include "navigator/UnsavedDialog.h"
#include "service/ZOLQRDCfgManager.h"
#include "toolkit/ZOLDlgNotify.h"
#include "values/ZOLGYRError.h"

#include <algorithm>

namespace trellis {

namespace {

constexpr unsigned long QuestionStyle = 0x2000000;
constexpr int FirstButton = 1;
constexpr int SecondButton = 2;
constexpr int MostListed = 12; // in a question

ZOLUnicodeString Number(int number) {
    return ZOLUnicodeString::FromNumber(number);
}

} // namespace

ZOLUnicodeString UnsavedWork::Text(const std::string& key,
                                   const ZOLListValZOLUnicodeString& parameters) const {
    ZOLUnicodeString text;
    _window.GetResourceValueFromKey(key.c_str(), text, parameters);
    return text;
}

int UnsavedWork::Ask(const std::string& question, const ZOLUnicodeString& text) {
    ZOLDlgNotify box(&_window, question.c_str(), QuestionStyle);
    box.SetOKTitle(Text(question + ".OK"));
    box.SetCANCELTitle(Text(question + ".Cancel"));
    if (const ZOLUnicodeString third = Text(question + ".Help"); !third.IsEmpty())
        box.SetHELPTitle(third);
    return box.DisplayBlocked(text, Text(question + ".Title"));
}

int UnsavedWork::CountUnsaved() const {
    return static_cast<int>(DatabaseSession::UnsavedChanges().size());
}

bool UnsavedWork::Write() {
    ZOLGYRError error;
    ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    if (error.GetCode() == 0)
        manager->Save(error);
    const bool isWritten = error.GetCode() == 0;
    _told.report(error);
    return isWritten;
}

void UnsavedWork::Save() {
    if (!Write())
        return;
    const int edits = CountEdits();
    _told.note(edits == 0 ? Text("Saved.Msg") : Text("SavedNotLinks.Msg", {Number(edits)}));
}

bool UnsavedWork::Discard() {
    std::vector<ZOLUnicodeString> lines;
    for (const UnsavedChange& change : DatabaseSession::UnsavedChanges())
        lines.push_back(change.what + " " + change.object);
    for (int position = 1; position <= CountEdits(); ++position)
        lines.push_back(_edit.Record().GetText(position));
    const int count = static_cast<int>(lines.size());
    ZOLUnicodeString text = Text("ConfirmDiscard.Msg") + "\n";
    for (int i = 0; i < std::min(count, MostListed); ++i)
        text += ZOLUnicodeString("\n") + lines[static_cast<std::size_t>(i)];
    if (count > MostListed)
        text += ZOLUnicodeString("\n") + Text("ConfirmDiscard.More", {Number(count - MostListed)});
    if (Ask("ConfirmDiscard", text) != FirstButton)
        return false;
    ZOLGYRError error;
    _edit.TakeBackAll();
    DatabaseSession::DiscardUnsaved(error);
    _told.note(Text("Discarded.Msg", {Number(count)}));
    _told.report(error);
    return true;
}

void UnsavedWork::List() {
    auto* dialog = new UnsavedDialog(&_window, _edit);
    const UnsavedDialog::Answer answer = dialog->Ask();
    dialog->RequestDelayedDestruction();
    if (answer == UnsavedDialog::Answer::Save)
        Save();
    else if (answer == UnsavedDialog::Answer::Discard)
        Discard();
}

bool UnsavedWork::MayLeave() {
    if (CountUnsaved() > 0) {
        const int answer = Ask("ConfirmLeave", Text("ConfirmLeave.Msg"));
        if (answer != FirstButton && answer != SecondButton)
            return false;
        if (answer == FirstButton && !Write())
            return false;
    }
    const int edits = CountEdits();
    return edits == 0 || Ask("ConfirmLosing", Text("ConfirmLosing.Msg", {Number(edits)})) == FirstButton;
}

} // namespace trellis
