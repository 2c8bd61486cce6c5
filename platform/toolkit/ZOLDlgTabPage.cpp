#include "toolkit/ZOLDlgTabPage.h"

ZOLDlgTabPage::ZOLDlgTabPage(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDialog(father, name, style) {}

const char* ZOLDlgTabPage::GetKind() const {
    return "page";
}

bool ZOLDlgTabPage::GrowsByClass() const {
    return true;
}

ZOLUnicodeString ZOLDlgTabPage::GetFallbackTitle() const {
    return GetName().ConvertToChar();
}

bool ZOLDlgTabPage::HoldsChildren() const {
    return true;
}
