#pragma once

#include "model/ImportText.h"
#include "model/StructureRecord.h"

#include <string_view>

namespace trellis {

// The two forms of a structure file. Each reads the whole text, which is valid UTF-8 without a byte order mark, and
// notes every row that it cannot make a record of.
StructureFile ReadStructureCsv(std::string_view text, ImportText::Problems& problems);
StructureFile ReadStructureJson(std::string_view text, ImportText::Problems& problems);

} // namespace trellis
