#include "session/EffectivityText.h"

#include "toolkit/ZOLGYRResource.h"

namespace trellis {

namespace {

ZOLUnicodeString Text(const char* key, const ZOLListValZOLUnicodeString& parameters) {
    ZOLUnicodeString text;
    ZOLGYRResource("StructureText").GetValue(key, text, parameters);
    return text;
}

// A bound with its milestone; empty for an open one.
ZOLUnicodeString Bound(const ZOLUnicodeString& value, const ZOLUnicodeString& program,
                       const ZOLUnicodeString& id, int offset) {
    if (id.IsEmpty())
        return value;
    ZOLUnicodeString distance;
    if (offset != 0)
        distance = ZOLUnicodeString(offset > 0 ? "+" : "") + ZOLUnicodeString::FromNumber(offset);
    return Text("Milestone", {value, program, id, distance});
}

// The two bounds of a term as texts; an open one is empty.
void Bounds(const ZOLQRDCfgEffectivity& term, ZOLUnicodeString& from, ZOLUnicodeString& to) {
    ZOLQRDTime start, end;
    int first = 0, last = 0;
    term.GetDate(start, end);
    term.GetRange(first, last);
    from = start.GetFormattedDate();
    to = end.GetFormattedDate();
    if (first > 0)
        from = ZOLUnicodeString::FromNumber(first);
    if (last > 0)
        to = ZOLUnicodeString::FromNumber(last);
    ZOLUnicodeString program, id;
    int offset = 0;
    term.GetMilestoneStart(program, id, offset);
    from = Bound(from, program, id, offset);
    term.GetMilestoneEnd(program, id, offset);
    to = Bound(to, program, id, offset);
}

ZOLUnicodeString Limits(const ZOLQRDCfgEffectivity& term) {
    ZOLUnicodeString from, to;
    Bounds(term, from, to);
    if (from.IsEmpty() && to.IsEmpty())
        return {};
    if (to.IsEmpty())
        return Text("From", {from});
    return from.IsEmpty() ? Text("UpTo", {to}) : Text("Between", {from, to});
}

ZOLUnicodeString Subject(const ZOLQRDCfgEffectivity& term) {
    ZOLListValZOLUnicodeString options;
    term.GetOptList(options);
    ZOLUnicodeString text = term.GetName();
    const ZOLUnicodeString both = ZOLGYRResource("ZOLQRDEffDisplay").GetValueOr("Tag.AND", "AND");
    for (const ZOLUnicodeString& option : options)
        text += (text.IsEmpty() ? ZOLUnicodeString() : ZOLUnicodeString(" ") + both + " ") + option;
    return text;
}

} // namespace

ZOLUnicodeString EffectivityText(const ZOLQRDCfgEffectivity& term) {
    const ZOLUnicodeString subject = Subject(term);
    const ZOLUnicodeString limits = Limits(term);
    if (subject.IsEmpty())
        return limits.IsEmpty() ? term.GetType() : limits;
    return limits.IsEmpty() ? subject : subject + ", " + limits;
}

} // namespace trellis
