#pragma once

#include "gallery/GalleryPage.h"
#include "toolkit/ZOLDlgCheckButton.h"
#include "toolkit/ZOLDlgTabContainer.h"
#include "toolkit/ZOLDlgWindow.h"

namespace trellis {

// GalleryWindow: every widget of the toolkit, by subjects, with a log of what arrives from them and with buttons that
// do by code what panels do.
class GalleryWindow : public ZOLDlgWindow {
    ZOL_META_OBJECT(GalleryWindow, ZOLDlgWindow)
public:
    GalleryWindow();

    ZOLString GetResourceFilename(int level) const override;
    // The window as a text: what is around the pages with the first of them, then the other pages. It has to be shown.
    std::string DescribeAll();

private:
    void BuildMenuBar();
    void BuildPages();
    void BuildTools();
    ZOLDlgCheckButton* AddSwitch(ZOLDialog* frame, const char* name);

    // The page that is shown.
    GalleryPage& Page() const;
    // Brings the examples into the state that the switches have.
    void ApplySwitches();

    void SwitchCB(ZOLCommand*, ZOLNotification*, void*);
    void SetByCodeCB(ZOLCommand*, ZOLNotification*, void*);
    void DestroyCB(ZOLCommand*, ZOLNotification*, void*);
    void BuildCB(ZOLCommand*, ZOLNotification*, void*);
    void ClearCB(ZOLCommand*, ZOLNotification*, void*);
    void CloseCB(ZOLCommand*, ZOLNotification*, void*);

    ZOLDlgTabContainer* _tabs;
    GalleryLog* _log;
    std::vector<GalleryPage*> _pages;
    ZOLDlgCheckButton* _greyed = nullptr;
    ZOLDlgCheckButton* _hidden = nullptr;
    ZOLDlgCheckButton* _endsSender = nullptr;
};

} // namespace trellis
