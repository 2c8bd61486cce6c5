#include "service/RuleCache.h"

#include <algorithm>

namespace trellis {

namespace {

// FNV-1a over the octets of what is put in.
class ContentHash {
public:
    void Put(const std::string& text) {
        Put(static_cast<std::int64_t>(text.size()));
        for (const char octet : text)
            Step(static_cast<unsigned char>(octet));
    }
    void Put(std::int64_t number) {
        for (int shift = 0; shift < 64; shift += 8)
            Step(static_cast<unsigned char>(number >> shift));
    }
    std::uint64_t Value() const { return _value; }

private:
    void Step(unsigned char octet) {
        _value ^= octet;
        _value *= 0x100000001b3ULL;
    }

    std::uint64_t _value = 0xcbf29ce484222325ULL;
};

void PutContent(ItemContent& content, ContentHash& hash) {
    for (const auto& record : content.Categories()) {
        const CategoryRow& row = record->Row();
        hash.Put(row.id);
        hash.Put(row.name);
        hash.Put(row.description);
        hash.Put(row.exclusivity);
        hash.Put(row.mandatory);
    }
    for (const auto& record : content.Effectivities()) {
        const EffectivityRow& row = record->Row();
        hash.Put(row.id);
        hash.Put(row.optionName);
        hash.Put(row.category);
        hash.Put(row.description);
    }
    for (const auto& record : content.Rules()) {
        const ConfigRuleRow& row = record->Row();
        hash.Put(row.id);
        hash.Put(row.type);
        hash.Put(row.text);
        hash.Put(row.matrix);
    }
    for (const auto& record : content.Matrices()) {
        hash.Put(record->Id());
        for (const auto& column : content.ColumnsOf(record->Id()))
            hash.Put(column->Row().category);
    }
}

std::uint64_t HashOf(const std::vector<ItemContent*>& contents) {
    ContentHash hash;
    for (ItemContent* content : contents)
        PutContent(*content, hash);
    return hash.Value();
}

std::vector<std::int64_t> IdsOf(const std::vector<ItemContent*>& contents) {
    std::vector<std::int64_t> ids;
    for (const ItemContent* content : contents)
        ids.push_back(content->Item()->Id());
    return ids;
}

} // namespace

std::shared_ptr<DictionaryRules> RuleCache::Find(const std::vector<ItemContent*>& contents,
                                                 std::int64_t changes) {
    const std::vector<std::int64_t> ids = IdsOf(contents);
    const auto found = std::ranges::find(_entries, ids, &Entry::dictionaries);
    if (found == _entries.end())
        return nullptr;
    if (found->changes != changes && found->hash != HashOf(contents)) {
        _entries.erase(found);
        return nullptr;
    }
    found->changes = changes;
    std::rotate(_entries.begin(), found, found + 1);
    return _entries.front().rules;
}

void RuleCache::Keep(const std::vector<ItemContent*>& contents, std::int64_t changes,
                     std::shared_ptr<DictionaryRules> rules) {
    _entries.push_front({IdsOf(contents), changes, HashOf(contents), std::move(rules)});
    if (_entries.size() > MostKept)
        _entries.pop_back();
}

} // namespace trellis
