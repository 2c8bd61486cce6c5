// ConfigureWindow: selections and pictures in files.

#include "configure/ConfigureWindow.h"
#include "session/FileDialog.h"
#include "session/KeptSelection.h"
#include "toolkit/GraphExport.h"
#include "toolkit/ZOLDlgNotify.h"
#include "values/ZOLGYRError.h"

#include <filesystem>

namespace trellis {

namespace {

constexpr unsigned long QuestionStyle = 0x2000000;
constexpr int Ok = 1;

} // namespace

void ConfigureWindow::OpenSelectionCB(ZOLCommand*, ZOLNotification*, void*) {
    auto* dialog = new FileDialog(this, "OpenSelection", "ConfigureOpen", "selection.json");
    ZOLUnicodeString path;
    const bool isNamed = dialog->Ask(path);
    dialog->RequestDelayedDestruction();
    if (!isNamed)
        return;
    ZOLGYRError error;
    if (const auto selection = KeptSelection::Read(path.Bytes(), error))
        Choose(*selection);
    Report(error);
}

void ConfigureWindow::Choose(KeptSelection selection) {
    const std::vector<ZOLParameter> unknown = selection.TakeOutUnknown(_panel->GetDictionaries());
    ZOLListPtrZOLParameter chosen;
    for (const ZOLParameter& choice : selection.choices)
        chosen.Append(new ZOLParameter(choice));
    _panel->ChooseInstead(chosen, selection.ignoredCategories);
    std::vector<ZOLUnicodeString> lines;
    for (const ZOLParameter& choice : unknown)
        lines.push_back(choice.GetParameterString(1));
    if (!lines.empty())
        Tell("UnknownOptions", lines);
}

bool ConfigureWindow::AskFileToWrite(const char* name, const char* resourceFile, const char* proposed,
                                     ZOLUnicodeString& path) {
    auto* dialog = new FileDialog(this, name, resourceFile, proposed);
    const bool isNamed = dialog->Ask(path);
    dialog->RequestDelayedDestruction();
    std::error_code none;
    if (!isNamed || !std::filesystem::exists(path.Bytes(), none))
        return isNamed;
    ZOLDlgNotify question(this, "ConfirmOverwrite", QuestionStyle);
    question.SetOKTitle(Text("ConfirmOverwrite.OK"));
    question.SetCANCELTitle(Text("ConfirmOverwrite.Cancel"));
    return question.DisplayBlocked(Text("ConfirmOverwrite.Msg", {path}), Text("ConfirmOverwrite.Title")) ==
           Ok;
}

void ConfigureWindow::SaveSelectionCB(ZOLCommand*, ZOLNotification*, void*) {
    ZOLUnicodeString path;
    if (!AskFileToWrite("SaveSelection", "ConfigureSave", "selection.json", path))
        return;
    KeptSelection selection;
    selection.product = ProductName().Bytes();
    selection.choices = _reasons->KnownChoices();
    selection.ignoredCategories = _reasons->IgnoredCategories();
    ZOLGYRError error;
    selection.Write(path.Bytes(), error);
    Report(error);
}

void ConfigureWindow::SavePictureCB(ZOLCommand*, ZOLNotification*, void*) {
    ZOLUnicodeString path;
    if (!AskFileToWrite("SavePicture", "NavigatorPicture", "options.svg", path))
        return;
    ZOLGYRError error;
    GraphExport::Save(*_panel->GetViewer()->GetGraph(), path, GraphExport::FormatOf(path), error);
    Report(error);
}

} // namespace trellis
