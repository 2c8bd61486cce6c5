#pragma once

#include "gallery/GalleryPage.h"

namespace trellis {

// ChoicesPage: buttons and menus.
class ChoicesPage : public GalleryPage {
    ZOL_META_OBJECT(ChoicesPage, GalleryPage)
public:
    using GalleryPage::GalleryPage;

protected:
    void Build(ZOLDlgFrame* holder) override;

private:
    void BuildPushButtons(ZOLDlgFrame* frame);
    void BuildCheckButtons(ZOLDlgFrame* frame);
    void BuildRadioButtons(ZOLDlgFrame* frame);
    void BuildMenu(ZOLDlgFrame* frame);
};

} // namespace trellis
