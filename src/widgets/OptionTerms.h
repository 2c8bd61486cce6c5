#pragma once

#include "values/ZOLQRDCfgEffectivity.h"

#include <unordered_set>

namespace trellis {

// OptionTerms: what happens to whole lists of option terms, by index: the cost grows with the length of the
// lists alone.
class OptionTerms {
public:
    using List = ZOLListValZOLQRDCfgEffectivity;
    using Names = std::unordered_set<ZOLUnicodeString>;

    static Names NamesOf(const List& terms);
    // The terms of these names, in their order.
    static List OfNames(const List& terms, const Names& names);
    // The same, and they are gone from the list.
    static List TakeNamed(const Names& names, List& terms);
    // Appends the terms that are not there yet. The same is what agrees in type, name, category, description,
    // used mark, limits and options: two terms of one name from two categories are two.
    static void AppendMissing(const List& terms, List& to);
    // Takes the first term that equals `term` out of `available`, for each of `terms` in order, and puts it
    // to the result; where there is none, the result takes `term` itself.
    static List TakeEqual(const List& terms, List& available);
};

} // namespace trellis
