#pragma once

#include "motif/MotifHolderPeer.h"
#include "motif/TextPainter.h"

#include <vector>

class ZOLDlgTabContainer;
class ZOLDlgTabPage;

namespace trellis {

// MotifTabPeer: shows a tab container: a strip of tabs drawn by our own hand over the page that is chosen. The
// arrow keys walk along the strip.
class MotifTabPeer : public MotifHolderPeer {
public:
    MotifTabPeer(MotifView& view, ZOLDlgTabContainer& tabs);
    void Mirror() override;
    void MirrorContent() override;
    void Place(const LayoutRectangle& place) override;
    Widget GetFocusWidget() const override { return _strip; }

protected:
    Widget Build(Widget parent) override;

private:
    struct Tab {
        ZOLDlgTabPage* page;
        int x;
        int width;
    };

    std::vector<Tab> TabsOnStrip();
    int StripHeight() const;
    void Draw(Widget, XEvent*);
    void DrawTab(cairo_t* context, const Tab& tab);
    void Clicked(Widget, XEvent* event);
    void KeyPressed(Widget, XEvent* event);
    void FocusMoved(Widget, XEvent* event);
    void Redraw();

    ZOLDlgTabContainer& _tabs;
    TextPainter _text;
    Widget _strip = nullptr;
    bool _hasFocus = false;
};

} // namespace trellis
