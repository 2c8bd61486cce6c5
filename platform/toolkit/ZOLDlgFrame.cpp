#include "toolkit/ZOLDlgFrame.h"

#include "toolkit/DialogDescription.h"
#include "toolkit/Growth.h"

namespace {

constexpr unsigned long noBorderBit = 0x80000;
constexpr unsigned long noTitleBit = 0x40000;

} // namespace

ZOLDlgFrame::ZOLDlgFrame(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDialog(father, name, style) {}

bool ZOLDlgFrame::HasBorder() const {
    return !(GetStyle() & noBorderBit);
}

bool ZOLDlgFrame::HasTitle() const {
    return !(GetStyle() & noTitleBit) && !GetTitle().IsEmpty();
}

const char* ZOLDlgFrame::GetKind() const {
    return "frame";
}

void ZOLDlgFrame::DescribeTo(trellis::DialogDescription& description) const {
    if (HasTitle())
        description.Widget(*this);
    else
        description.Line(IsSensitive() ? GetKind() : std::string(GetKind()) + " greyed");
    description.Children(*this);
}

bool ZOLDlgFrame::GrowsByClass() const {
    return trellis::AnyChildGrows(*this);
}

bool ZOLDlgFrame::HoldsChildren() const {
    return true;
}
