#include "toolkit/ZOLDlgLabel.h"

#include "toolkit/DialogDescription.h"

ZOLDlgLabel::ZOLDlgLabel(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDialog(father, name, style) {}

const char* ZOLDlgLabel::GetKind() const {
    return "label";
}

void ZOLDlgLabel::DescribeTo(trellis::DialogDescription& description) const {
    if (!GetTitle().IsEmpty())
        description.Widget(*this);
}

ZOLUnicodeString ZOLDlgLabel::GetFallbackTitle() const {
    return GetName().ConvertToChar();
}
