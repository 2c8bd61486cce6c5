#pragma once

#include "store/StoreSession.h"

#include <cstdint>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

namespace trellis {

// What can only be asked of the store as a whole, in SQL. All of it sees stored rows alone and throws StoreFailure.

// The number of stored objects of each kind, with the word for the kind.
std::vector<std::pair<std::string, std::int64_t>> CountObjects(StoreSession& session);

// Ids of parts that no link holds as child, in order.
std::vector<std::int64_t> UnusedParts(StoreSession& session);

// Those of the given ids of parts that hold links.
std::unordered_set<std::int64_t> PartsWithLinks(StoreSession& session, const std::vector<std::int64_t>& ids);

// One line per thing that is wrong: damage of the file, references to rows that are missing, names that occur twice
// where they must not, parts that contain themselves. At most 100 lines of each sort.
std::vector<std::string> FindDamage(StoreSession& session);

} // namespace trellis
