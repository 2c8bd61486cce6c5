#include "widgets/OptionTerms.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>

namespace trellis {

namespace {

// All that tells two terms apart, as one text.
std::string KeyOf(const ZOLQRDCfgEffectivity& term) {
    ZOLQRDTime start;
    ZOLQRDTime end;
    term.GetDate(start, end);
    int first = 0;
    int last = 0;
    term.GetRange(first, last);
    std::string key;
    for (const ZOLUnicodeString& text :
         {term.GetType(), term.GetName(), term.GetCategory(), term.GetDescription()})
        key.append(text.Bytes()).push_back('\0');
    for (const ZOLQRDTime& day : {start, end})
        key += (day.IsValuated() ? std::to_string(day.GetZOLTime().Gettime_t()) : "") + ';';
    key += std::to_string(first) + ';' + std::to_string(last) + ';' + std::to_string(term.IsUsed());
    ZOLListValZOLUnicodeString options;
    term.GetOptList(options);
    for (const ZOLUnicodeString& option : options)
        key.append(1, '\0').append(option.Bytes());
    return key;
}

} // namespace

OptionTerms::Names OptionTerms::NamesOf(const List& terms) {
    Names names;
    for (const ZOLQRDCfgEffectivity& term : terms)
        names.insert(term.GetName());
    return names;
}

OptionTerms::List OptionTerms::OfNames(const List& terms, const Names& names) {
    List found;
    for (const ZOLQRDCfgEffectivity& term : terms)
        if (names.contains(term.GetName()))
            found.Append(term);
    return found;
}

OptionTerms::List OptionTerms::TakeNamed(const Names& names, List& terms) {
    List taken;
    List rest;
    for (ZOLQRDCfgEffectivity& term : terms)
        (names.contains(term.GetName()) ? taken : rest).Append(std::move(term));
    terms = std::move(rest);
    return taken;
}

void OptionTerms::AppendMissing(const List& terms, List& to) {
    std::unordered_set<std::string> present;
    for (const ZOLQRDCfgEffectivity& term : to)
        present.insert(KeyOf(term));
    for (const ZOLQRDCfgEffectivity& term : terms)
        if (present.insert(KeyOf(term)).second)
            to.Append(term);
}

OptionTerms::List OptionTerms::TakeEqual(const List& terms, List& available) {
    std::unordered_map<std::size_t, std::vector<int>> positions; // by hash, the last position first
    for (int i = available.Size(); i >= 1; --i)
        positions[available[i].Hash()].push_back(i);
    List taken;
    std::unordered_set<int> left;
    for (const ZOLQRDCfgEffectivity& term : terms) {
        std::vector<int>& candidates = positions[term.Hash()];
        const auto found = std::find_if(candidates.rbegin(), candidates.rend(),
                                        [&](int position) { return available[position] == term; });
        taken.Append(found == candidates.rend() ? term : available[*found]);
        if (found == candidates.rend())
            continue;
        left.insert(*found);
        candidates.erase(std::next(found).base());
    }
    List rest;
    for (int i = 1; i <= available.Size(); ++i)
        if (!left.contains(i))
            rest.Append(available[i]);
    available = std::move(rest);
    return taken;
}

} // namespace trellis
