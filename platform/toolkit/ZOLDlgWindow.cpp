#include "toolkit/ZOLDlgWindow.h"

#include "toolkit/CallbackScope.h"
#include "toolkit/DialogRegistry.h"
#include "toolkit/OpenQuestions.h"
#include "toolkit/ToolkitView.h"

namespace {

constexpr unsigned long aboveFatherBit = 0x200;
constexpr unsigned long modalBit = 0x2000000;

} // namespace

ZOLDlgWindow::ZOLDlgWindow(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDialog(trellis::DialogRegistry::Instance().Living(father), name, style),
      _closeNotification("ZOLDlgWindCloseNotification") {
    InitialiseVisibility(ZOLHidden);
}

void ZOLDlgWindow::SetVisibility(int visibility) {
    ZOLDialog::SetVisibility(visibility);
    if (GetVisibility() != ZOLShown) {
        trellis::OpenQuestions::Instance().Answer(*this, 0); // nobody could answer it any more
        return;
    }
    trellis::DialogRegistry::Instance().Raise(*this);
    if (trellis::ToolkitView* view = trellis::ToolkitView::Current())
        view->Shown(*this);
}

bool ZOLDlgWindow::IsModal() const {
    return GetStyle() & modalBit;
}

bool ZOLDlgWindow::StaysAboveFather() const {
    return GetStyle() & aboveFatherBit;
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
