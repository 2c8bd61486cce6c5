#include "toolkit/ZOLDlgMotif.h"

#include "toolkit/ToolkitView.h"

ZOLDlgMotif::ZOLDlgMotif(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDialog(father, name, style) {}

void* ZOLDlgMotif::GetFatherWidget() {
    trellis::ToolkitView* view = trellis::ToolkitView::Current();
    return view ? view->GetNativeFather(*this) : nullptr;
}

void* ZOLDlgMotif::GetXtAppContext() {
    trellis::ToolkitView* view = trellis::ToolkitView::Current();
    return view ? view->GetNativeApplication() : nullptr;
}

const char* ZOLDlgMotif::GetKind() const {
    return "native";
}
