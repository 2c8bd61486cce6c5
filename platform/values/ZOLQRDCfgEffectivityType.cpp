#include "values/ZOLQRDCfgEffectivityType.h"

namespace {

using Type = ZOLQRDCfgEffectivityType;
using Subject = ZOLQRDCfgEffectivityType::Subject;

enum class Limit { None, Dates, Numbers };

struct Kind {
    const char* word;
    Subject subject;
    Limit limit;
};

// The first kind of a subject and a limit is the one that terms are made with.
constexpr Kind Kinds[] = {
    {Type::Date, Subject::Limits, Limit::Dates},
    {Type::Range, Subject::Limits, Limit::Numbers},
    {Type::OptionUndef, Subject::Option, Limit::None},
    {Type::Option, Subject::Option, Limit::None},
    {Type::OptionDate, Subject::Option, Limit::Dates},
    {Type::OptionRange, Subject::Option, Limit::Numbers},
    {Type::PackUndef, Subject::Pack, Limit::None},
    {Type::Pack, Subject::Pack, Limit::None},
    {Type::PackDate, Subject::Pack, Limit::Dates},
    {Type::PackRange, Subject::Pack, Limit::Numbers},
    {Type::Modification, Subject::Modification, Limit::None},
    {Type::Personal, Subject::Modification, Limit::None},
    {Type::None, Subject::Other, Limit::None},
};

const Kind* KindOf(const ZOLUnicodeString& type) {
    for (const Kind& kind : Kinds)
        if (type.Bytes() == kind.word)
            return &kind;
    return nullptr;
}

Limit LimitOf(const ZOLUnicodeString& type) {
    const Kind* kind = KindOf(type);
    return kind ? kind->limit : Limit::None;
}

ZOLUnicodeString WithSubject(Subject subject, const ZOLUnicodeString& type) {
    const Limit limit = type.Bytes() == Type::Range  ? Limit::Numbers
                        : type.Bytes() == Type::Date ? Limit::Dates
                                                     : Limit::None;
    for (const Kind& kind : Kinds)
        if (kind.subject == subject && kind.limit == limit)
            return kind.word;
    return {};
}

} // namespace

Subject ZOLQRDCfgEffectivityType::SubjectOf(const ZOLUnicodeString& type) {
    const Kind* kind = KindOf(type);
    return kind ? kind->subject : Subject::Other;
}

bool ZOLQRDCfgEffectivityType::HasDates(const ZOLUnicodeString& type) {
    return LimitOf(type) == Limit::Dates;
}

bool ZOLQRDCfgEffectivityType::HasNumbers(const ZOLUnicodeString& type) {
    return LimitOf(type) == Limit::Numbers;
}

ZOLUnicodeString ZOLQRDCfgEffectivityType::WithOption(const ZOLUnicodeString& type) {
    return WithSubject(Subject::Option, type);
}

ZOLUnicodeString ZOLQRDCfgEffectivityType::WithPack(const ZOLUnicodeString& type) {
    return WithSubject(Subject::Pack, type);
}
