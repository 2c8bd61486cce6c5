#include "motif/MotifTabPeer.h"

#include "motif/CairoShapes.h"
#include "motif/MotifView.h"
#include "toolkit/ZOLDlgTabContainer.h"
#include "toolkit/ZOLDlgTabPage.h"

#include <X11/keysym.h>
#include <Xm/DrawingA.h>
#include <cairo-xlib.h>

#include <algorithm>

namespace trellis {

MotifTabPeer::MotifTabPeer(MotifView& view, ZOLDlgTabContainer& tabs)
    : MotifHolderPeer(view, tabs), _tabs(tabs), _text(view.GetTheme()) {}

Widget MotifTabPeer::Build(Widget parent) {
    Widget surface = MotifHolderPeer::Build(parent);
    _strip = XtVaCreateManagedWidget("tabStrip", xmDrawingAreaWidgetClass, surface, XmNnavigationType,
                                     XmTAB_GROUP, XmNtraversalOn, True, nullptr);
    Listen<&MotifTabPeer::Draw>(_strip, ExposureMask);
    Listen<&MotifTabPeer::Clicked>(_strip, ButtonPressMask);
    Listen<&MotifTabPeer::KeyPressed>(_strip, KeyPressMask);
    Listen<&MotifTabPeer::FocusMoved>(_strip, FocusChangeMask);
    return surface;
}

void MotifTabPeer::Mirror() {
    MotifHolderPeer::Mirror();
    Redraw();
}

// Titles and greying of the pages stand on the strip.
void MotifTabPeer::MirrorContent() {
    MotifHolderPeer::MirrorContent();
    Redraw();
}

void MotifTabPeer::Place(const LayoutRectangle& place) {
    MotifHolderPeer::Place(place);
    MotifQuirks::Configure(_strip, 0, 0, place.width, StripHeight());
}

int MotifTabPeer::StripHeight() const {
    return _text.LineHeight() + 2 * Theme::RowPadding + 2;
}

std::vector<MotifTabPeer::Tab> MotifTabPeer::TabsOnStrip() {
    std::vector<Tab> tabs;
    const int padding = GetView().GetTheme().Pixels(Theme::ButtonWidthMargin);
    int x = 0;
    for (ZOLDlgTabPage* page : _tabs.GetPages()) {
        const int width = _text.Width(page->GetTitle().Bytes(), TextPainter::Bold) + 2 * padding;
        tabs.push_back({page, x, width});
        x += width;
    }
    return tabs;
}

void MotifTabPeer::Redraw() {
    if (XtIsRealized(_strip))
        XClearArea(GetView().GetDisplay(), XtWindow(_strip), 0, 0, 0, 0, True);
}

void MotifTabPeer::Draw(Widget, XEvent* event) {
    if (event->xexpose.count > 0)
        return;
    Display* display = GetView().GetDisplay();
    const auto [x, y, width, height] = MotifQuirks::PlaceOf(_strip);
    cairo_surface_t* surface = cairo_xlib_surface_create(
        display, XtWindow(_strip), DefaultVisualOfScreen(XtScreen(_strip)), width, height);
    cairo_t* context = cairo_create(surface);
    cairo_push_group(context);
    CairoShapes::Fill(context, {0, 0, width, height}, Theme::Background);
    CairoShapes::HorizontalLine(context, 0, height - 1, width, Theme::TopShadow);
    for (const Tab& tab : TabsOnStrip())
        DrawTab(context, tab);
    cairo_pop_group_to_source(context);
    cairo_paint(context);
    cairo_destroy(context);
    cairo_surface_destroy(surface);
}

// The chosen tab stands out by weight and by the bar under it.
void MotifTabPeer::DrawTab(cairo_t* context, const Tab& tab) {
    const bool isChosen = tab.page == _tabs.GetSelectedPage();
    const int height = StripHeight();
    const std::string title = tab.page->GetTitle().Bytes();
    const auto weight = isChosen ? TextPainter::Bold : TextPainter::Plain;
    CairoShapes::SetColour(context, tab.page->IsSensitive() ? Theme::Text : Theme::GreyedText);
    _text.Draw(context, title, tab.x + (tab.width - _text.Width(title, weight)) / 2, Theme::RowPadding,
               weight);
    if (const std::size_t letter = title.find(GetView().GetMnemonics().Of(*tab.page));
        letter != std::string::npos)
        _text.Underline(context, title, letter, tab.x + (tab.width - _text.Width(title, weight)) / 2,
                        Theme::RowPadding, _text.Width(title, weight), weight);
    if (!isChosen)
        return;
    CairoShapes::Fill(context, {tab.x + 2, height - 3, tab.width - 4, 3}, Theme::Accent);
    if (_hasFocus)
        CairoShapes::FocusRing(context, {tab.x + 2, 1, tab.width - 4, height - 5});
}

void MotifTabPeer::Clicked(Widget, XEvent* event) {
    if (event->xbutton.button != Button1)
        return;
    XmProcessTraversal(_strip, XmTRAVERSE_CURRENT);
    for (const Tab& tab : TabsOnStrip())
        if (event->xbutton.x >= tab.x && event->xbutton.x < tab.x + tab.width) {
            _tabs.UserSelectPage(tab.page);
            return;
        }
}

void MotifTabPeer::KeyPressed(Widget, XEvent* event) {
    const KeySym key = XLookupKeysym(&event->xkey, 0);
    const int step = key == XK_Left ? -1 : key == XK_Right ? 1 : 0;
    const std::vector<ZOLDlgTabPage*> pages = _tabs.GetPages();
    const int count = static_cast<int>(pages.size());
    const auto chosen = std::find(pages.begin(), pages.end(), _tabs.GetSelectedPage());
    if (step == 0 || chosen == pages.end())
        return;
    for (int i = static_cast<int>(chosen - pages.begin()) + step; i >= 0 && i < count; i += step)
        if (ZOLDlgTabPage* page = pages[static_cast<std::size_t>(i)]; page->IsSensitive()) {
            _tabs.UserSelectPage(page);
            return;
        }
}

void MotifTabPeer::FocusMoved(Widget, XEvent* event) {
    _hasFocus = event->type == FocusIn;
    Redraw();
}

} // namespace trellis
