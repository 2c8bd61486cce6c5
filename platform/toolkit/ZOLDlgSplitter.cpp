#include "toolkit/ZOLDlgSplitter.h"

#include "toolkit/DialogDescription.h"

ZOLDlgSplitter::ZOLDlgSplitter(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDialog(father, name, style) {}

const char* ZOLDlgSplitter::GetKind() const {
    return "split";
}

void ZOLDlgSplitter::DescribeTo(trellis::DialogDescription& description) const {
    description.Line(GetKind());
    description.Children(*this);
}

bool ZOLDlgSplitter::GrowsByClass() const {
    return true;
}

bool ZOLDlgSplitter::HoldsChildren() const {
    return true;
}
