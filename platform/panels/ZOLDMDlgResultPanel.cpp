#include "panels/ZOLDMDlgResultPanel.h"

namespace {

// Made by the constructor of the first panel, so it lives longer than every one of them.
ZOLListPtrZOLDMDlgResultPanel& PanelsOfHosts() {
    static ZOLListPtrZOLDMDlgResultPanel panels;
    return panels;
}

} // namespace

ZOLListPtrZOLDMDlgResultPanel ZOLDMDlgResultPanel::GetListResultPanel() {
    ZOLListPtrZOLDMDlgResultPanel panels = PanelsOfHosts();
    static ZOLDMDlgResultPanel builtIn{BuiltIn()};
    panels.Append(&builtIn);
    return panels;
}

ZOLDMDlgResultPanel::ZOLDMDlgResultPanel() {
    PanelsOfHosts().Append(this);
}

ZOLDMDlgResultPanel::~ZOLDMDlgResultPanel() {
    PanelsOfHosts().RemoveValue(this);
}
