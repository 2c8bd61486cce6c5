#pragma once

#include "values/ImportProblem.h"
#include "values/ProgressCB.h"
#include "values/TrellisApi.h"

#include <string_view>

namespace trellis {

// What an import found and did. Nothing was written when problems stand.
struct ModelImportReport {
    std::vector<ImportProblem> problems; // in order of lines
    int categories = 0;
    int options = 0;
    int rules = 0;
};

// ModelImport: brings a variability model into the dictionary of a product, or into the corporate one, from
// UVL or DIMACS, whole or not at all, and saves. docs/guide/model-import.md tells what becomes of groups and
// constraints. The dictionary must be empty, since the rules of a model speak of all its options; a product
// without a dictionary gets one.
//
// A line that is wrong is reported with one of 60212, 60224, 60700 to 60740. Errors beside those of the file:
// 60423 the dictionary is not empty (product), 60201, 60202, 60203, 60420 to 60422 and 20265 as those of an
// import of a dictionary; refused rights, and the numbers of a failed save. None of them changes anything, in
// the store or in memory.
class TRELLIS_API ModelImport {
public:
    enum class Form { Uvl, Dimacs };

    // The form follows from the ending: ".cnf" and ".dimacs" are DIMACS, all else UVL. The product is named
    // by its number or identifier, or is the word "corporate".
    static bool ReadFile(const ZOLUnicodeString& path, const ZOLUnicodeString& product,
                         ModelImportReport& report, ZOLGYRError& error, const ProgressCB& progress = {});
    // The same from memory; `name` stands for the path in messages.
    static bool ReadText(std::string_view text, Form form, const ZOLUnicodeString& name,
                         const ZOLUnicodeString& product, ModelImportReport& report, ZOLGYRError& error,
                         const ProgressCB& progress = {});
};

} // namespace trellis
