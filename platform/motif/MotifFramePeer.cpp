#include "motif/MotifFramePeer.h"

#include "motif/MotifView.h"
#include "toolkit/ZOLDlgFrame.h"

#include <algorithm>

namespace trellis {

MotifFramePeer::MotifFramePeer(MotifView& view, ZOLDlgFrame& frame)
    : MotifHolderPeer(view, frame), _frame(frame) {}

Widget MotifFramePeer::Build(Widget parent) {
    Widget surface = MotifHolderPeer::Build(parent);
    _title.emplace(GetView(), surface, "frameTitle");
    OpensMenu(_title->GetWidget());
    Listen<&MotifFramePeer::Exposed>(surface, ExposureMask);
    return surface;
}

void MotifFramePeer::Mirror() {
    MotifHolderPeer::Mirror();
    PlaceTitle();
    _title->Show(_frame.GetTitle(), _frame.IsSensitive());
    _title->SetManaged(_frame.HasTitle());
}

void MotifFramePeer::PlaceTitle() {
    const TextMeasure& measure = GetView().GetTextMeasure();
    const int indent = GetView().GetTheme().Pixels(_frame.HasBorder() ? Theme::CellPadding : 0);
    const int width = MotifQuirks::PlaceOf(GetWidget()).width - 2 * indent;
    _title->Place({indent, 0, std::clamp(measure.GetTextWidth(_frame.GetTitle()), 1, std::max(width, 1)),
                   measure.GetLineHeight()});
}

void MotifFramePeer::Place(const LayoutRectangle& place) {
    const LayoutRectangle before = MotifQuirks::PlaceOf(GetWidget());
    const bool hasOtherSize = before.width != place.width || before.height != place.height;
    MotifHolderPeer::Place(place);
    PlaceTitle();
    if (hasOtherSize && XtIsRealized(GetWidget()))
        XClearArea(GetView().GetDisplay(), XtWindow(GetWidget()), 0, 0, 0, 0, True);
}

// The line begins at half the height of the title; around the title it leaves some room.
void MotifFramePeer::Exposed(Widget surface, XEvent* event) {
    if (event->xexpose.count > 0 || !_frame.HasBorder())
        return;
    Display* display = GetView().GetDisplay();
    XGCValues values;
    XtVaGetValues(surface, XmNtopShadowColor, &values.foreground, nullptr);
    GC pen = XtGetGC(surface, GCForeground, &values);
    const Window window = XtWindow(surface);
    const LayoutRectangle place = MotifQuirks::PlaceOf(surface);
    const LayoutRectangle title = MotifQuirks::PlaceOf(_title->GetWidget());
    const short top =
        static_cast<short>(_frame.HasTitle() ? GetView().GetTextMeasure().GetLineHeight() / 2 : 0);
    const short right = static_cast<short>(place.width - 1);
    const short bottom = static_cast<short>(place.height - 1);
    XPoint around[] = {{0, top}, {0, bottom}, {right, bottom}, {right, top}};
    XDrawLines(display, window, pen, around, 4, CoordModeOrigin);
    short broken = 0;
    if (_frame.HasTitle()) {
        constexpr int gap = 4;
        XDrawLine(display, window, pen, 0, top, title.x - gap, top);
        broken = static_cast<short>(title.x + title.width + gap);
    }
    if (broken < right)
        XDrawLine(display, window, pen, broken, top, right, top);
    XtReleaseGC(surface, pen);
}

} // namespace trellis
