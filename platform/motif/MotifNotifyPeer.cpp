#include "motif/MotifNotifyPeer.h"

#include "motif/CairoShapes.h"
#include "motif/MotifView.h"
#include "motif/TextWrap.h"
#include "toolkit/ZOLDlgNotify.h"

#include <Xm/DrawingA.h>
#include <Xm/Text.h>
#include <cairo-xlib.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace trellis {

namespace {

// In pixels of the plain theme, but the last, which are lines.
constexpr int margin = 16;
constexpr int gap = 12;
constexpr int markSize = 32;
constexpr int textWidth = 440;
constexpr int mostLines = 20;

// Told apart by shape and sign, not by colour alone: discs, and an octagon for what went wrong.
struct MessageMark {
    ThemeColour colour;
    const char* sign;
    int corners;
};

const MessageMark& MarkOf(ZOLDlgNotify::Sign sign) {
    constexpr int round = 72;
    static constexpr MessageMark notice = {Theme::HeaderText, "i", round};
    static constexpr MessageMark question = {Theme::Accent, "?", round};
    static constexpr MessageMark error = {Theme::Danger, "!", 8};
    if (sign == ZOLDlgNotify::Sign::Question)
        return question;
    return sign == ZOLDlgNotify::Sign::Error ? error : notice;
}

Arg Argument(const char* name, XtArgVal value) {
    return {MotifQuirks::Name(name), value};
}

ZOLUnicodeString Joined(const std::vector<ZOLUnicodeString>& lines) {
    ZOLUnicodeString text = lines.front();
    for (std::size_t i = 1; i < lines.size(); ++i)
        text += "\n" + lines[i];
    return text;
}

} // namespace

MotifNotifyPeer::MotifNotifyPeer(MotifView& view, ZOLDlgNotify& notify)
    : MotifShellPeer(view, notify), _notify(notify) {}

ZOLDialog* MotifNotifyPeer::GetBelow() const {
    return _notify.GetDialogBelow();
}

void MotifNotifyPeer::BuildContent(Widget shell) {
    _box = MotifButtonRow::MakeBox("box", shell);
    _buttons.emplace(GetView(), _box);
    for (const ZOLDialogButton button : DialogButtons::Row)
        Connect<&MotifNotifyPeer::Pressed>(_buttons->GetWidget(button), XmNactivateCallback);
    _mark = XtVaCreateManagedWidget("mark", xmDrawingAreaWidgetClass, _box, XmNtraversalOn, False, nullptr);
    Listen<&MotifNotifyPeer::DrawMark>(_mark, ExposureMask);
    BuildText();
    XtManageChild(_box);
}

void MotifNotifyPeer::BuildText() {
    const TextMeasure& measure = GetView().GetTextMeasure();
    const Theme& theme = GetView().GetTheme();
    const std::vector<ZOLUnicodeString> lines = WrapText(_notify.GetText(), measure, theme.Pixels(textWidth));
    const bool scrolls = lines.size() > mostLines;
    Pixel ground = 0;
    XtVaGetValues(_box, XmNbackground, &ground, nullptr);
    std::array<Arg, 9> arguments = {Argument(XmNeditMode, XmMULTI_LINE_EDIT),
                                    Argument(XmNeditable, False),
                                    Argument(XmNcursorPositionVisible, False),
                                    Argument(XmNshadowThickness, 0),
                                    Argument(XmNbackground, ground),
                                    Argument(XmNtraversalOn, scrolls),
                                    Argument(XmNmarginWidth, 2),
                                    Argument(XmNmarginHeight, 2),
                                    Argument(XmNscrollHorizontal, False)};
    char* name = MotifQuirks::Name("message");
    Widget text = scrolls ? XmCreateScrolledText(_box, name, arguments.data(), arguments.size())
                          : XmCreateText(_box, name, arguments.data(), 8);
    XmTextSetString(text, MotifQuirks::Name(Joined(lines).ConvertToChar()));
    XtManageChild(text);
    _text = scrolls ? XtParent(text) : text;

    int width = 0;
    for (const ZOLUnicodeString& line : lines)
        width = std::max(width, measure.GetTextWidth(line));
    _textSize.width = width + theme.Pixels(gap) + (scrolls ? theme.Pixels(2 * Theme::ScrollBar) : 0);
    _textSize.height =
        static_cast<int>(std::min<std::size_t>(lines.size(), mostLines)) * measure.GetLineHeight() +
        theme.Pixels(gap);
}

void MotifNotifyPeer::Mirror() {
    _buttons->Mirror(_notify.GetButtons(), _notify, ZOLDialogButton::OK);
}

LayoutSize MotifNotifyPeer::LayOut(LayoutSize size) {
    const Theme& theme = GetView().GetTheme();
    const int edge = theme.Pixels(margin);
    const int mark = theme.Pixels(markSize);
    const int besideMark = edge + mark + theme.Pixels(gap);
    const LayoutSize buttons = _buttons->GetSize(_notify.GetButtons(), _notify);
    const int upper = std::max(_textSize.height, mark);
    const LayoutSize needed = {std::max(besideMark + _textSize.width, edge + buttons.width) + edge,
                               edge + upper + edge + buttons.height + edge};
    size = {std::max(size.width, needed.width), std::max(size.height, needed.height)};
    MotifQuirks::Configure(_box, 0, 0, size.width, size.height);
    MotifQuirks::Configure(_mark, edge, edge, mark, mark);
    const int room = size.height - (edge + edge + buttons.height + edge);
    const int height = std::max(_textSize.height, room);
    const int y = _textSize.height < mark ? edge + (mark - _textSize.height) / 2 : edge;
    MotifQuirks::Configure(_text, besideMark, y, size.width - besideMark - edge, height);
    _buttons->Place(_notify.GetButtons(), _notify,
                    {edge, size.height - edge - buttons.height, size.width - 2 * edge, buttons.height});
    return needed;
}

void MotifNotifyPeer::DrawMark(Widget mark, XEvent*) {
    const LayoutRectangle place = MotifQuirks::PlaceOf(mark);
    const double size = place.width;
    const MessageMark& look = MarkOf(_notify.GetSign());
    cairo_surface_t* surface = cairo_xlib_surface_create(
        XtDisplay(mark), XtWindow(mark), DefaultVisualOfScreen(XtScreen(mark)), place.width, place.height);
    cairo_t* context = cairo_create(surface);
    CairoShapes::SetColour(context, look.colour);
    for (int corner = 0; corner < look.corners; ++corner) {
        const double angle = (2 * corner + 1) * std::numbers::pi / look.corners;
        cairo_line_to(context, size / 2 + (size / 2 - 1) * std::sin(angle),
                      size / 2 + (size / 2 - 1) * std::cos(angle));
    }
    cairo_fill(context);
    TextPainter text(Theme(GetView().GetTheme().FontFamily(), GetView().GetTheme().FontPoints() * 1.6));
    CairoShapes::SetColour(context, Theme::Field);
    text.Draw(context, look.sign, (size - text.Width(look.sign, TextPainter::Bold)) / 2,
              (size - text.LineHeight()) / 2, TextPainter::Bold);
    cairo_destroy(context);
    cairo_surface_destroy(surface);
}

void MotifNotifyPeer::Close() {
    _notify.UserClose();
}

void MotifNotifyPeer::Pressed(Widget button, XtPointer) {
    _notify.UserPress(_buttons->GetButton(button));
}

} // namespace trellis
