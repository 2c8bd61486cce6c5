#pragma once

#include "values/CORBAAny.h"
#include "values/EffParam.h"
#include "values/TrellisApi.h"
#include "values/ZOLQRDCfgEffectivityType.h"
#include "values/ZOLQRDTime.h"

#include <cstddef>

template <class T>
class ZOLVar;
class ZOLIQrdEffectivity;

// ZOLQRDCfgEffectivity: one effectivity term: for which option, package or modification, or between which
// bounds, a link is valid. A value; copies share nothing.
//
// Two terms are equal
//   option kinds         when the option's name is the same, whatever limit, category or kind of suffix
//   pack kinds           when the same options stand in the same order and the limits are the same
//   "date", "range"      when the limits are the same
//   modification kinds   when the name is the same, public or personal
//   any other            when the word of the type and the name are the same
// Limits are the four values, and an open end equals an open end. Category (empty on terms that come from a
// link), description, flags, milestones and attributes never count. std::hash agrees with this.
class TRELLIS_API ZOLQRDCfgEffectivity {
public:
    // An empty term: no type, no name, no limits.
    ZOLQRDCfgEffectivity() = default;
    // An option term for a selection, of type "option_undef"; the category may be empty.
    ZOLQRDCfgEffectivity(const ZOLUnicodeString& option, const ZOLUnicodeString& category);
    // value: the name of the option or modification; of a pack kind its one option, if not empty. A last of 0
    // or below and a day without value are open.
    ZOLQRDCfgEffectivity(const ZOLUnicodeString& type, const ZOLUnicodeString& value, int first, int last,
                         const ZOLQRDTime& start, const ZOLQRDTime& end);
    // used: the used mark.
    ZOLQRDCfgEffectivity(const ZOLUnicodeString& type, const ZOLUnicodeString& value, int first, int last,
                         const ZOLQRDTime& start, const ZOLQRDTime& end, const ZOLUnicodeString& category,
                         const ZOLUnicodeString& description, int used);
    // A package: `options` in order. For an option kind the first of them is the option.
    ZOLQRDCfgEffectivity(const ZOLUnicodeString& type, const ZOLListValZOLUnicodeString& options, int first,
                         int last, const ZOLQRDTime& start, const ZOLQRDTime& end);
    // From a stored option or effectivity, with its used mark; a null handle gives an empty term.
    ZOLQRDCfgEffectivity(const ZOLVar<ZOLIQrdEffectivity>& stored);

    // A word of ZOLQRDCfgEffectivityType, fixed when the term is made.
    const ZOLUnicodeString& GetType() const { return _type; }
    // The name of the option or the modification; empty for a package.
    const ZOLUnicodeString& GetName() const { return _name; }
    const ZOLUnicodeString& GetOptionName() const { return _name; }
    // An empty category means that it is not known; the option is then looked for by its name alone.
    const ZOLUnicodeString& GetCategory() const { return _category; }
    void SetCategory(const ZOLUnicodeString& category) { _category = category; }
    const ZOLUnicodeString& GetDescription() const { return _description; }
    void SetDescription(const ZOLUnicodeString& description) { _description = description; }

    void GetDate(ZOLQRDTime& start, ZOLQRDTime& end) const;
    // The type stays, also when the term had no dates.
    void SetDate(const ZOLQRDTime& start, const ZOLQRDTime& end);
    // last: 0 when open.
    void GetRange(int& first, int& last) const;
    // The options of a package in order; empty for any other kind.
    void GetOptList(ZOLListValZOLUnicodeString& options) const { options = _options; }

    // The program and milestone that a bound comes from, and by how many days or numbers it stands off the
    // milestone's value. Empty texts and 0 when there is none.
    void SetMilestoneStart(const ZOLUnicodeString& program, const ZOLUnicodeString& id, int offset = 0);
    void SetMilestoneEnd(const ZOLUnicodeString& program, const ZOLUnicodeString& id, int offset = 0);
    void GetMilestoneStart(ZOLUnicodeString& program, ZOLUnicodeString& id, int& offset) const;
    void GetMilestoneEnd(ZOLUnicodeString& program, ZOLUnicodeString& id, int& offset) const;

    // Free pairs of a term: names, and the values at the same positions.
    void SetAttrList(const ZOLListValZOLUnicodeString& names, const ZOLListValZOLUnicodeString& values);
    void GetAttrList(ZOLListValZOLUnicodeString& names, ZOLListValZOLUnicodeString& values) const;

    // State of the option in a selection: selected when neither rejected nor undefined nor ignored.
    int IsSelected() const { return !_isRejected && !_isUndefined && !_isIgnored; }
    int IsRejected() const { return _isRejected; }
    void SetRejected(int on = 1) { _isRejected = on != 0; }
    int IsRuleDefined() const { return _isRuleDefined; }
    void SetRuleDefined(int on = 1) { _isRuleDefined = on != 0; }
    int IsIgnored() const { return _isIgnored; }
    void SetIgnored(int on = 1) { _isIgnored = on != 0; }
    int IsUndefined() const { return _isUndefined; }
    void SetUndefined(int on = 1) { _isUndefined = on != 0; }
    // A term is used until that is unset, or until it is made from what is not used.
    int IsUsed() const { return _isUsed; }
    void UnsetUsed() { _isUsed = false; }

    // The term as a flat record, whose texts the caller frees by EffParamFree.
    EffParam GetEffParam() const;
    // The values of the term as one loosely typed value:
    //   option, modification   the name as a text
    //   package                a sequence of texts
    //   "date"                 a sequence of two times, 0 when open (1970-01-01 itself is 1)
    //   "range"                a sequence of two numbers
    // An option or a package with dates, or else with numbers, is a sequence of its own value and the two
    // limits.
    void GetValues(CORBAAny& values) const;

    friend TRELLIS_API bool operator==(const ZOLQRDCfgEffectivity& a, const ZOLQRDCfgEffectivity& b);
    std::size_t Hash() const;

private:
    struct Milestone {
        ZOLUnicodeString program;
        ZOLUnicodeString id;
        int offset = 0;
    };

    bool SameLimits(const ZOLQRDCfgEffectivity& other) const;
    bool HasDates() const { return _start.IsValuated() || _end.IsValuated(); }

    ZOLUnicodeString _type;
    ZOLUnicodeString _name;
    ZOLUnicodeString _category;
    ZOLUnicodeString _description;
    ZOLListValZOLUnicodeString _options;
    ZOLListValZOLUnicodeString _attributeNames;
    ZOLListValZOLUnicodeString _attributeValues;
    ZOLQRDTime _start;
    ZOLQRDTime _end;
    int _first = 0;
    int _last = 0;
    Milestone _startMilestone;
    Milestone _endMilestone;
    bool _isRejected = false;
    bool _isRuleDefined = false;
    bool _isIgnored = false;
    bool _isUndefined = false;
    bool _isUsed = true;
};

template <>
struct std::hash<ZOLQRDCfgEffectivity> {
    std::size_t operator()(const ZOLQRDCfgEffectivity& term) const { return term.Hash(); }
};

using ZOLListValZOLQRDCfgEffectivity = ZOLListVal<ZOLQRDCfgEffectivity>;
