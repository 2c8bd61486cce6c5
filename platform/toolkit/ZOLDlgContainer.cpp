#include "toolkit/ZOLDlgContainer.h"

#include "toolkit/DialogDescription.h"

ZOLDlgContainer::ZOLDlgContainer(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDialog(father, name, style) {}

const char* ZOLDlgContainer::GetKind() const {
    return "scroll";
}

void ZOLDlgContainer::DescribeTo(trellis::DialogDescription& description) const {
    description.Line(GetKind());
    description.Children(*this);
}

bool ZOLDlgContainer::GrowsByClass() const {
    return true;
}

bool ZOLDlgContainer::HoldsChildren() const {
    return true;
}
