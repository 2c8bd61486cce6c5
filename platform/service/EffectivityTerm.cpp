#include "service/EffectivityTerm.h"

#include "values/ZOLGYRError.h"

namespace trellis {

namespace {

ZOLQRDTime DayOf(const std::string& text) {
    ZOLGYRError noDate;
    return text.empty() ? ZOLQRDTime() : ZOLQRDTime(ZOLUnicodeString(text), noDate);
}

int Number(std::int64_t value) {
    return static_cast<int>(value);
}

ZOLQRDCfgEffectivity LimitedTerm(const EffectivityRow& row, const ZOLListValZOLUnicodeString& options) {
    const int first = Number(row.first);
    const int last = Number(row.last);
    const ZOLQRDTime start = DayOf(row.startDate);
    const ZOLQRDTime end = DayOf(row.endDate);
    if (ZOLQRDCfgEffectivityType::IsPackKind(row.type))
        return {row.type, options, first, last, start, end};
    return {row.type, ZOLUnicodeString(row.optionName), first, last, start, end};
}

} // namespace

ZOLQRDCfgEffectivity TermOfRow(const EffectivityRow& row, const ZOLListValZOLUnicodeString& options) {
    ZOLQRDCfgEffectivity term = LimitedTerm(row, options);
    term.SetCategory(row.categoryName);
    term.SetDescription(row.description);
    if (row.used == 0)
        term.UnsetUsed();
    term.SetMilestoneStart(row.startProgram, row.startMilestone, Number(row.startOffset));
    term.SetMilestoneEnd(row.endProgram, row.endMilestone, Number(row.endOffset));
    return term;
}

} // namespace trellis
