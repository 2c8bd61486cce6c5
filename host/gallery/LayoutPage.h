#pragma once

#include "gallery/GalleryPage.h"

namespace trellis {

// LayoutPage: what holds other widgets.
class LayoutPage : public GalleryPage {
    ZOL_META_OBJECT(LayoutPage, GalleryPage)
public:
    using GalleryPage::GalleryPage;

protected:
    void Build(ZOLDlgFrame* holder) override;

private:
    void BuildSplitter(ZOLDlgFrame* frame);
    void BuildContainer(ZOLDlgFrame* frame);
    void BuildTabs(ZOLDlgFrame* frame);
    void BuildGrid(ZOLDlgFrame* frame);
};

} // namespace trellis
