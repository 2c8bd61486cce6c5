#pragma once

#include "model/StructureDraft.h"
#include "store/StoreSession.h"

namespace trellis {

// Notes every link of the draft by which a part would come to contain itself, over the links of the file and those
// that the database holds below the file's parts. `ids` are those of the draft's parts, 0 for parts that are new.
void NoteCycles(StoreSession& session, const StructureDraft& draft, const std::vector<std::int64_t>& ids,
                ImportText::Problems& problems);

} // namespace trellis
