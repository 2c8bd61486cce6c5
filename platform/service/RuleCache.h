#pragma once

#include "service/ItemContent.h"

#include <deque>
#include <memory>
#include <vector>

namespace trellis {

class DictionaryRules;

// RuleCache: the compiled rules of the sets of dictionaries that were asked for last. They are valid as long as nothing
// has changed that rules depend on; what that was is remembered as a hash of 64 bits over all of it.
class RuleCache {
public:
    // Null where they were not kept, or are out of date. `changes` is the workspace's count: while it is the same,
    // nothing is looked at.
    std::shared_ptr<DictionaryRules> Find(const std::vector<ItemContent*>& contents, std::int64_t changes);
    void Keep(const std::vector<ItemContent*>& contents, std::int64_t changes,
              std::shared_ptr<DictionaryRules> rules);

private:
    static constexpr std::size_t MostKept = 4;

    struct Entry {
        std::vector<std::int64_t> dictionaries;
        std::int64_t changes;
        std::uint64_t hash;
        std::shared_ptr<DictionaryRules> rules;
    };

    std::deque<Entry> _entries; // the newest first
};

} // namespace trellis
