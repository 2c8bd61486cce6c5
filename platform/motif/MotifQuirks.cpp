#include "motif/MotifQuirks.h"

#include "values/ZOLUnicodeString.h"

#include <X11/IntrinsicP.h> // XtConfigureWidget

#include <algorithm>

namespace trellis {

namespace {

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
    const auto part = [](double value) { return static_cast<unsigned short>(value * 65535); };
    Colormap map = 0;
    XtVaGetValues(widget, XmNcolormap, &map, nullptr);
    XColor wanted = {};
    wanted.red = part(colour.Red());
    wanted.green = part(colour.Green());
    wanted.blue = part(colour.Blue());
    return XAllocColor(XtDisplay(widget), map, &wanted) ? wanted.pixel : BlackPixelOfScreen(XtScreen(widget));
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

void MotifQuirks::SetManaged(Widget widget, bool isManaged) {
    if (XtIsManaged(widget) == isManaged)
        return;
    isManaged ? XtManageChild(widget) : XtUnmanageChild(widget);
}

} // namespace trellis
