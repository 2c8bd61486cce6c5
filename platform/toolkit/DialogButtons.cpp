#include "toolkit/DialogButtons.h"

#include "toolkit/DialogDescription.h"
#include "toolkit/ZOLDialog.h"
#include "toolkit/ZOLGYRResource.h"

namespace trellis {

namespace {
constexpr const char* keys[] = {"", "OK", "Cancel", "Help", "Apply"};
}

void DialogButtons::SetTitle(ZOLDialogButton button, const ZOLUnicodeString& title) {
    At(button).title = title;
    At(button).isThere = true;
}

ZOLUnicodeString DialogButtons::GetTitle(ZOLDialogButton button, const ZOLDialog& dialog) const {
    if (At(button).title)
        return *At(button).title;
    const std::string key = std::string(keys[Index(button)]) + ".Title";
    ZOLUnicodeString title;
    if (dialog.GetResourceValueFromKey(std::string(dialog.GetName().View()) + "." + key, title))
        return title;
    return ZOLGYRResource("ZOLDlgDialog").GetValueOr(key, keys[Index(button)]);
}

std::string DialogButtons::Describe(const ZOLDialog& dialog, ZOLDialogButton defaultButton) const {
    std::string line = "buttons";
    for (const ZOLDialogButton button : Row) {
        if (!At(button).isThere)
            continue;
        line += line == "buttons" ? " " : ", ";
        line += DialogDescription::Quoted(GetTitle(button, dialog));
        if (button == defaultButton)
            line += " default";
        if (!At(button).isSensitive || !dialog.IsSensitive())
            line += " greyed";
    }
    return line;
}

} // namespace trellis
