#include "toolkit/ZOLDlgWindow.h"

#include "toolkit/CallbackScope.h"
#include "toolkit/DialogRegistry.h"
#include "toolkit/ToolkitView.h"

ZOLDlgWindow::ZOLDlgWindow(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDialog(father, name, style), _closeNotification("ZOLDlgWindCloseNotification") {
    InitialiseVisibility(ZOLHidden);
}

void ZOLDlgWindow::SetVisibility(int visibility) {
    ZOLDialog::SetVisibility(visibility);
    if (GetVisibility() != ZOLShown)
        return;
    trellis::DialogRegistry::Instance().Raise(*this);
    if (trellis::ToolkitView* view = trellis::ToolkitView::Current())
        view->Shown(*this);
}

ZOLUserResult ZOLDlgWindow::UserClose() {
    const trellis::CallbackScope scope;
    const ZOLUserResult gate = UserGate();
    // A window can be closed whatever is greyed in it.
    if (gate != ZOLUserResult::Done && gate != ZOLUserResult::Insensitive)
        return gate;
    SendNotification(this, &_closeNotification);
    return ZOLUserResult::Done;
}

bool ZOLDlgWindow::IsWindow() const {
    return true;
}

const char* ZOLDlgWindow::GetKind() const {
    return "window";
}

ZOLUnicodeString ZOLDlgWindow::GetFallbackTitle() const {
    const ZOLString file = GetResourceFilename(0);
    ZOLUnicodeString title;
    if (!file.IsEmpty() && GetResourceValueFromKey(std::string(file.View()) + ".Title", title))
        return title;
    return GetName().ConvertToChar();
}
