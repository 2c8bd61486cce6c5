#include "values/ZOLQRDCfgEffectivity.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>

namespace {

using Type = ZOLQRDCfgEffectivityType;
using Subject = ZOLQRDCfgEffectivityType::Subject;

char* MallocCopy(const ZOLUnicodeString& text) {
    char* copy = strdup(text.ConvertToChar());
    if (!copy)
        throw std::bad_alloc();
    return copy;
}

// Seconds of a day, where 0 is kept for an open bound.
std::int64_t FlatSeconds(const ZOLQRDTime& day) {
    if (!day.IsValuated())
        return 0;
    const std::int64_t seconds = day.GetZOLTime().Gettime_t();
    return seconds == 0 ? 1 : seconds;
}

template <class First, class Second>
_SEQUENCE_CORBAAny Pair(const First& first, const Second& second) {
    _SEQUENCE_CORBAAny values;
    values.length(2);
    values[0] <<= first;
    values[1] <<= second;
    return values;
}

void Combine(std::size_t& hash, std::size_t other) {
    hash ^= other + 0x9e3779b97f4a7c15u + (hash << 6) + (hash >> 2);
}

std::size_t HashOf(const ZOLQRDTime& day) {
    return std::hash<std::int64_t>{}(FlatSeconds(day));
}

} // namespace

ZOLQRDCfgEffectivity::ZOLQRDCfgEffectivity(const ZOLUnicodeString& option, const ZOLUnicodeString& category)
    : _type(Type::OptionUndef), _name(option), _category(category) {}

ZOLQRDCfgEffectivity::ZOLQRDCfgEffectivity(const ZOLUnicodeString& type, const ZOLUnicodeString& value,
                                           int first, int last, const ZOLQRDTime& start,
                                           const ZOLQRDTime& end)
    : _type(type), _start(start), _end(end), _first(first), _last(std::max(last, 0)) {
    if (!Type::IsPackKind(type))
        _name = value;
    else if (!value.IsEmpty())
        _options.Append(value);
}

ZOLQRDCfgEffectivity::ZOLQRDCfgEffectivity(const ZOLUnicodeString& type, const ZOLUnicodeString& value,
                                           int first, int last, const ZOLQRDTime& start,
                                           const ZOLQRDTime& end, const ZOLUnicodeString& category,
                                           const ZOLUnicodeString& description, int used)
    : ZOLQRDCfgEffectivity(type, value, first, last, start, end) {
    _category = category;
    _description = description;
    _isUsed = used != 0;
}

ZOLQRDCfgEffectivity::ZOLQRDCfgEffectivity(const ZOLUnicodeString& type,
                                           const ZOLListValZOLUnicodeString& options, int first, int last,
                                           const ZOLQRDTime& start, const ZOLQRDTime& end)
    : ZOLQRDCfgEffectivity(type, ZOLUnicodeString(), first, last, start, end) {
    if (Type::IsPackKind(type))
        _options = options;
    else if (options.Size() > 0)
        _name = options[1];
}

void ZOLQRDCfgEffectivity::GetDate(ZOLQRDTime& start, ZOLQRDTime& end) const {
    start = _start;
    end = _end;
}

void ZOLQRDCfgEffectivity::SetDate(const ZOLQRDTime& start, const ZOLQRDTime& end) {
    _start = start;
    _end = end;
}

void ZOLQRDCfgEffectivity::GetRange(int& first, int& last) const {
    first = _first;
    last = _last;
}

void ZOLQRDCfgEffectivity::SetMilestoneStart(const ZOLUnicodeString& program, const ZOLUnicodeString& id,
                                             int offset) {
    _startMilestone = {program, id, offset};
}

void ZOLQRDCfgEffectivity::SetMilestoneEnd(const ZOLUnicodeString& program, const ZOLUnicodeString& id,
                                           int offset) {
    _endMilestone = {program, id, offset};
}

void ZOLQRDCfgEffectivity::GetMilestoneStart(ZOLUnicodeString& program, ZOLUnicodeString& id,
                                             int& offset) const {
    program = _startMilestone.program;
    id = _startMilestone.id;
    offset = _startMilestone.offset;
}

void ZOLQRDCfgEffectivity::GetMilestoneEnd(ZOLUnicodeString& program, ZOLUnicodeString& id,
                                           int& offset) const {
    program = _endMilestone.program;
    id = _endMilestone.id;
    offset = _endMilestone.offset;
}

void ZOLQRDCfgEffectivity::SetAttrList(const ZOLListValZOLUnicodeString& names,
                                       const ZOLListValZOLUnicodeString& values) {
    _attributeNames = names;
    _attributeValues = values;
}

void ZOLQRDCfgEffectivity::GetAttrList(ZOLListValZOLUnicodeString& names,
                                       ZOLListValZOLUnicodeString& values) const {
    names = _attributeNames;
    values = _attributeValues;
}

EffParam ZOLQRDCfgEffectivity::GetEffParam() const {
    ZOLListValZOLUnicodeString options = _options;
    if (!_name.IsEmpty())
        options.Append(_name);
    EffParam flat{};
    flat.version = TRELLIS_EFFPARAM_VERSION;
    flat.type = MallocCopy(_type);
    if (options.Size() > 0)
        flat.options =
            static_cast<char**>(std::calloc(static_cast<std::size_t>(options.Size()), sizeof(char*)));
    for (const ZOLUnicodeString& option : options)
        flat.options[flat.optionCount++] = MallocCopy(option);
    flat.first = _first;
    flat.last = _last;
    flat.start = FlatSeconds(_start);
    flat.end = FlatSeconds(_end);
    flat.startMilestone = {MallocCopy(_startMilestone.program), MallocCopy(_startMilestone.id),
                           _startMilestone.offset};
    flat.endMilestone = {MallocCopy(_endMilestone.program), MallocCopy(_endMilestone.id),
                         _endMilestone.offset};
    return flat;
}

void ZOLQRDCfgEffectivity::GetValues(CORBAAny& values) const {
    const bool hasDates = HasDates();
    const _SEQUENCE_CORBAAny limits =
        hasDates || Type::HasDates(_type)
            ? Pair(ZOLTimeValue{FlatSeconds(_start)}, ZOLTimeValue{FlatSeconds(_end)})
            : Pair(_first, _last);
    const Subject subject = Type::SubjectOf(_type);
    if (subject == Subject::Limits) {
        values <<= limits;
        return;
    }

    CORBAAny own;
    if (subject == Subject::Pack) {
        _SEQUENCE_CORBAAny names;
        names.length(static_cast<unsigned>(_options.Size()));
        for (int i = 1; i <= _options.Size(); ++i)
            names[static_cast<unsigned>(i - 1)] <<= _options[i];
        own <<= names;
    } else {
        own <<= _name;
    }
    if (!hasDates && _first == 0 && _last == 0) {
        values = own;
        return;
    }
    _SEQUENCE_CORBAAny all;
    all.length(3);
    all[0] = own;
    all[1] = limits[0];
    all[2] = limits[1];
    values <<= all;
}

bool ZOLQRDCfgEffectivity::SameLimits(const ZOLQRDCfgEffectivity& other) const {
    return _first == other._first && _last == other._last && _start == other._start && _end == other._end;
}

bool operator==(const ZOLQRDCfgEffectivity& a, const ZOLQRDCfgEffectivity& b) {
    const Subject subject = Type::SubjectOf(a._type);
    if (subject != Type::SubjectOf(b._type))
        return false;
    switch (subject) {
    case Subject::Option:
    case Subject::Modification:
        return a._name == b._name;
    case Subject::Pack:
        return a.SameLimits(b) && std::ranges::equal(a._options, b._options);
    case Subject::Limits:
        return a._type == b._type && a.SameLimits(b);
    case Subject::Other:
        break;
    }
    return a._type == b._type && a._name == b._name;
}

std::size_t ZOLQRDCfgEffectivity::Hash() const {
    const Subject subject = Type::SubjectOf(_type);
    std::size_t hash = static_cast<std::size_t>(subject);
    if (subject != Subject::Pack && subject != Subject::Limits) {
        Combine(hash, std::hash<ZOLUnicodeString>{}(_name));
        return hash;
    }
    for (const ZOLUnicodeString& option : _options)
        Combine(hash, std::hash<ZOLUnicodeString>{}(option));
    Combine(hash, std::hash<int>{}(_first));
    Combine(hash, std::hash<int>{}(_last));
    Combine(hash, HashOf(_start));
    Combine(hash, HashOf(_end));
    return hash;
}
