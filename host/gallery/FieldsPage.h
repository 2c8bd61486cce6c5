#pragma once

#include "gallery/GalleryPage.h"

namespace trellis {

// FieldsPage: editors, combos and labels.
class FieldsPage : public GalleryPage {
    ZOL_META_OBJECT(FieldsPage, GalleryPage)
public:
    using GalleryPage::GalleryPage;

protected:
    void Build(ZOLDlgFrame* holder) override;

private:
    void BuildEditors(ZOLDlgFrame* frame);
    void BuildCombos(ZOLDlgFrame* frame);
    void BuildLabels(ZOLDlgFrame* frame);
};

} // namespace trellis
