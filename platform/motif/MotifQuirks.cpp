#include "motif/MotifQuirks.h"

#include "values/ZOLUnicodeString.h"

#include <X11/IntrinsicP.h> // XtConfigureWidget
#include <Xm/RowColumnP.h>  // what menus remember
// Behind their macros of the same names stand functions, without casts.
#undef XtDisplay
#undef XtWindow

// Exported by the library, in no header of it.
extern "C" XmMenuState _XmGetMenuState(Widget widget); // NOLINT(bugprone-reserved-identifier)

#include <algorithm>
#include <bit>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

namespace trellis {

namespace {

// The pixel where the bits of a pixel are the colour itself, as on nearly all screens: the server need not be asked.
std::optional<Pixel> TrueColour(const Visual& visual, ThemeColour colour) {
    if (visual.c_class != TrueColor)
        return std::nullopt;
    Pixel pixel = 0;
    for (const auto& [mask, value] :
         {std::pair(visual.red_mask, colour.Red()), std::pair(visual.green_mask, colour.Green()),
          std::pair(visual.blue_mask, colour.Blue())}) {
        const int shift = std::countr_zero(mask);
        const auto most = static_cast<double>(mask >> shift);
        pixel |= static_cast<Pixel>(std::lround(value * most)) << shift;
    }
    return pixel;
}

Dimension Size(int pixels) {
    return static_cast<Dimension>(std::clamp(pixels, 1, 32000));
}

} // namespace

MotifQuirks::Text::Text(const ZOLUnicodeString& text)
    : _string(XmStringGenerate(Name(text.ConvertToChar()), nullptr, XmCHARSET_TEXT, nullptr)) {}

void MotifQuirks::SetLabel(Widget label, const ZOLUnicodeString& text) {
    const Text wanted(text);
    XmString shown = nullptr;
    XtVaGetValues(label, XmNlabelString, &shown, nullptr);
    if (shown && XmStringCompare(shown, wanted.Get())) {
        XmStringFree(shown);
        return;
    }
    XmStringFree(shown);
    XtVaSetValues(label, XmNlabelString, wanted.Get(), nullptr);
}

Pixel MotifQuirks::Colour(Widget widget, ThemeColour colour) {
    Screen* screen = XtScreenOfObject(widget);
    if (const auto pixel = TrueColour(*DefaultVisualOfScreen(screen), colour))
        return *pixel;
    const auto part = [](double value) { return static_cast<unsigned short>(value * 65535); };
    Colormap map = 0;
    XtVaGetValues(widget, XmNcolormap, &map, nullptr);
    XColor wanted = {};
    wanted.red = part(colour.Red());
    wanted.green = part(colour.Green());
    wanted.blue = part(colour.Blue());
    return XAllocColor(XtDisplay(widget), map, &wanted) ? wanted.pixel : BlackPixelOfScreen(screen);
}

LayoutPoint MotifQuirks::RootPlaceOf(Widget widget) {
    Position x = 0;
    Position y = 0;
    XtTranslateCoords(widget, 0, 0, &x, &y);
    return {x, y};
}

LayoutRectangle MotifQuirks::PlaceOf(Widget widget) {
    Position x = 0;
    Position y = 0;
    Dimension width = 0;
    Dimension height = 0;
    XtVaGetValues(widget, XmNx, &x, XmNy, &y, XmNwidth, &width, XmNheight, &height, nullptr);
    return {x, y, width, height};
}

void MotifQuirks::SetSensitive(Widget widget, bool isSensitive) {
    Boolean is = False;
    XtVaGetValues(widget, XmNsensitive, &is, nullptr);
    if (is != isSensitive)
        XtSetSensitive(widget, isSensitive);
}

void MotifQuirks::Configure(Widget widget, int x, int y, int width, int height) {
    XtConfigureWidget(widget, static_cast<Position>(x), static_cast<Position>(y), Size(width), Size(height),
                      0);
}

void MotifQuirks::DestroyChildren(Widget widget) {
    WidgetList list = nullptr;
    Cardinal count = 0;
    XtVaGetValues(widget, XmNchildren, &list, XmNnumChildren, &count, nullptr);
    std::vector<Widget> children(list, list + count);
    XtUnmanageChildren(children.data(), count);
    children.insert(children.end(), widget->core.popup_list,
                    widget->core.popup_list + widget->core.num_popups);
    for (Widget child : children)
        XtDestroyWidget(child);
}

void MotifQuirks::NoteMenuPress(Widget shell, XButtonEvent press) {
    XEvent event = {};
    press.button = Button3;
    press.state = 0;
    event.xbutton = press;
    XtDispatchEventToWidget(shell, &event);
}

void MotifQuirks::EndMenuClick(Widget application) {
    _XmGetMenuState(application)->MS_LastManagedMenuTime = 0;
}

void MotifQuirks::LetKeysWalkMenus(Widget application) {
    _XmGetMenuState(application)->MU_InDragMode = False;
}

void MotifQuirks::Redraw(Widget widget) {
    if (const Window window = XtWindow(widget))
        XClearArea(XtDisplay(widget), window, 0, 0, 0, 0, True);
}

void MotifQuirks::TellApart(XEvent& event) {
    static unsigned long last = 0;
    if (event.type < KeyPress || event.type > ButtonRelease)
        return;
    event.xany.serial = std::max(event.xany.serial, last + 1);
    last = event.xany.serial;
}

void MotifQuirks::LeaveScrollKeys(Widget clipWindow) {
    XtUninstallTranslations(clipWindow);
}

// No key has the code 0, so nobody answers it.
void MotifQuirks::RememberInstead(Widget lasting, XtEventDispatchProc nativeKeys) {
    XEvent event = {};
    event.xkey.type = KeyPress;
    event.xkey.display = XtDisplay(lasting);
    event.xkey.window = XtWindow(lasting);
    nativeKeys(&event);
}

void MotifQuirks::SetManaged(Widget widget, bool isManaged) {
    if (XtIsManaged(widget) == isManaged)
        return;
    isManaged ? XtManageChild(widget) : XtUnmanageChild(widget);
}

} // namespace trellis
