#pragma once

#include "values/ImportProblem.h"
#include "values/ProgressCB.h"
#include "values/TrellisApi.h"
#include "values/ZOLUnicodeString.h"

#include <string_view>
#include <vector>

namespace trellis {

// What an import found and did. Nothing was written when problems stand.
struct ImportReport {
    std::vector<ImportProblem> problems; // in order of lines; numbers 60210 to 60239
    int newParts = 0;
    int changedParts = 0;
    int newLinks = 0;
    int changedLinks = 0;
};

// StructureImport: brings parts, links and attributes of a product structure into the open database, from CSV or JSON,
// whole or not at all. docs/guide/structure-import.md tells the forms. Parts and links that came in before under the
// same id are updated; what the file does not name, and what it leaves empty, stays as it is.
//
// Errors beside those of the file: 60201 no database is open, 60202 the file cannot be read (path, reason), 60203 the
// file holds problems (path, how many), and the numbers of a failed write.
class TRELLIS_API StructureImport {
public:
    enum class Form { Csv, Json };

    // The form follows from the ending: ".json" is JSON, all else CSV.
    static bool ReadFile(const ZOLUnicodeString& path, ImportReport& report, ZOLGYRError& error,
                         const ProgressCB& progress = {});
    // The same from memory; `name` stands for the path in messages.
    static bool ReadText(std::string_view text, Form form, const ZOLUnicodeString& name, ImportReport& report,
                         ZOLGYRError& error, const ProgressCB& progress = {});
};

} // namespace trellis
