#include "motif/MotifToolTip.h"

#include "motif/MotifPeer.h"
#include "motif/MotifView.h"
#include "motif/TextWrap.h"
#include "toolkit/OpenQuestions.h"
#include "toolkit/ZOLDialog.h"

#include <X11/Shell.h>
#include <Xm/Label.h>

#include <algorithm>
#include <utility>

namespace trellis {

namespace {

// In pixels of the plain theme.
constexpr int textWidth = 360;
constexpr int padding = 6;
constexpr int belowPointer = 20;
constexpr int abovePointer = 6;

} // namespace

MotifToolTip::~MotifToolTip() {
    Hide();
    if (_shell)
        XtDestroyWidget(_shell);
}

// A server also tells of motions that lead nowhere, as when a window comes up under the pointer.
void MotifToolTip::PointerMoved(const ZOLDialog& window, LayoutPoint root) {
    if (root.x == _pointer.x && root.y == _pointer.y && (_isUp || _timer))
        return;
    Hide();
    _pointer = root;
    _window = window.GetNumber();
    _timer = XtAppAddTimeOut(XtWidgetToApplicationContext(_view.GetApplication()), RestMilliseconds,
                             &MotifToolTip::RestedCB, this);
}

void MotifToolTip::Hide() {
    if (const XtIntervalId timer = std::exchange(_timer, 0))
        XtRemoveTimeOut(timer);
    if (std::exchange(_isUp, false))
        XtPopdown(_shell);
}

void MotifToolTip::RestedCB(XtPointer self, XtIntervalId*) {
    auto* toolTip = static_cast<MotifToolTip*>(self);
    toolTip->_timer = 0;
    toolTip->Show();
}

ZOLUnicodeString MotifToolTip::TextAt(const ZOLDialog& window, LayoutPoint root) const {
    const ZOLDialog& there = _view.DialogAt(window, root);
    for (const ZOLDialog* dialog = &there; dialog && !dialog->IsWindow(); dialog = dialog->GetOwner())
        if (const ZOLUnicodeString text = dialog->GetToolTip(); !text.IsEmpty())
            return text;
    const MotifPeer* peer = _view.FindPeer(there);
    if (!peer || !peer->GetWidget())
        return {};
    const LayoutPoint corner = MotifQuirks::RootPlaceOf(peer->GetWidget());
    return peer->GetHiddenText({root.x - corner.x, root.y - corner.y});
}

void MotifToolTip::Show() {
    const MotifPeer* shell = MotifPeer::Find(_window);
    if (!shell || _view.IsMenuOpen() || OpenQuestions::Instance().Blocks(shell->GetDialog()))
        return;
    const ZOLUnicodeString text = TextAt(shell->GetDialog(), _pointer);
    if (text.IsEmpty())
        return;
    Write(text);
    _isUp = true;
    XtPopup(_shell, XtGrabNone);
}

void MotifToolTip::Write(const ZOLUnicodeString& text) {
    const Theme& theme = _view.GetTheme();
    if (!_shell) {
        _shell = XtVaCreatePopupShell("toolTip", overrideShellWidgetClass, _view.GetApplication(),
                                      XmNallowShellResize, False, XmNsaveUnder, True, nullptr);
        _label = XtVaCreateManagedWidget("text", xmLabelWidgetClass, _shell, XmNalignment,
                                         XmALIGNMENT_BEGINNING, XmNrecomputeSize, False, nullptr);
        XtVaSetValues(_label, XmNbackground, MotifQuirks::Colour(_label, Theme::Text), XmNforeground,
                      MotifQuirks::Colour(_label, Theme::Field), XmNmarginWidth, theme.Pixels(padding),
                      XmNmarginHeight, theme.Pixels(padding), nullptr);
    }
    const TextMeasure& measure = _view.GetTextMeasure();
    ZOLUnicodeString lines;
    int width = 0;
    int height = 0;
    for (const ZOLUnicodeString& line : WrapText(text, measure, theme.Pixels(textWidth))) {
        lines += height > 0 ? "\n" + line : line;
        width = std::max(width, measure.GetTextWidth(line));
        height += measure.GetLineHeight();
    }
    MotifQuirks::SetLabel(_label, lines);
    const LayoutSize size = {width + 2 * theme.Pixels(padding) + 2, height + 2 * theme.Pixels(padding)};
    const LayoutPoint place = PlaceFor(size);
    XtVaSetValues(_shell, XmNx, place.x, XmNy, place.y, XmNwidth, size.width, XmNheight, size.height,
                  nullptr);
}

LayoutPoint MotifToolTip::PlaceFor(LayoutSize size) const {
    const Theme& theme = _view.GetTheme();
    Screen* screen = XtScreen(_shell);
    const int below = _pointer.y + theme.Pixels(belowPointer);
    const int above = _pointer.y - theme.Pixels(abovePointer) - size.height;
    const int y = below + size.height <= HeightOfScreen(screen) ? below : std::max(above, 0);
    return {std::clamp(_pointer.x, 0, std::max(WidthOfScreen(screen) - size.width, 0)), y};
}

} // namespace trellis
