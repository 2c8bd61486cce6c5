#include "toolkit/ZOLDlgSeparator.h"

#include "toolkit/LayoutMetrics.h"

ZOLDlgSeparator::ZOLDlgSeparator(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDialog(father, name, style) {}

const char* ZOLDlgSeparator::GetKind() const {
    return "separator";
}

trellis::LayoutSize ZOLDlgSeparator::GetNaturalSize(const trellis::TextMeasure&) const {
    return {trellis::LayoutMetrics::separator, trellis::LayoutMetrics::separator};
}
