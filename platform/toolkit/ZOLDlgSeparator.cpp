#include "toolkit/ZOLDlgSeparator.h"

ZOLDlgSeparator::ZOLDlgSeparator(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDialog(father, name, style) {}

const char* ZOLDlgSeparator::GetKind() const {
    return "separator";
}
