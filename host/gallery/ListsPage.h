#pragma once

#include "gallery/GalleryPage.h"

namespace trellis {

// ListsPage: lists of one and of several columns, with one and with several selected rows.
class ListsPage : public GalleryPage {
    ZOL_META_OBJECT(ListsPage, GalleryPage)
public:
    using GalleryPage::GalleryPage;

protected:
    void Build(ZOLDlgFrame* holder) override;

private:
    void BuildMultiList(ZOLDlgFrame* frame, const char* name, unsigned long style);
    void BuildSelectorList(ZOLDlgFrame* frame, const char* name, unsigned long style);
};

} // namespace trellis
