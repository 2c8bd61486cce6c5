#pragma once

#include "model/StructureImport.h"

namespace trellis {

// What an import found and did. Nothing was written when problems stand.
struct DictionaryImportReport {
    std::vector<ImportProblem> problems; // in order of lines
    int newCategories = 0;
    int changedCategories = 0;
    int newOptions = 0;
    int changedOptions = 0;
};

// DictionaryImport: brings categories and options into the dictionary of a product, or into the corporate
// one, from CSV or JSON, whole or not at all, and saves. docs/guide/dictionary-import.md tells the forms.
// What the dictionary has already under the same name is updated; what the file does not name stays as it is.
// A product without a dictionary gets one.
//
// A line that is wrong is reported with one of 60210 to 60218, 60230 to 60232, 60400, 60410 to 60419. Errors
// beside those of the file: 60201 no database is open, 60202 the file cannot be read (path, reason), 60203
// the file holds problems (path, how many), 60420 no part, 60421 several parts are meant (word), 60422
// unsaved changes stand, with which the import could not be taken back as a whole; 20265 the product is not
// configurable; refused rights, and the numbers of a failed save. None of them changes anything, in the store
// or in memory.
class TRELLIS_API DictionaryImport {
public:
    using Form = StructureImport::Form;

    // What stands for the corporate dictionary in place of a product.
    static constexpr const char* Corporate = "corporate";

    // The form follows from the ending: ".json" is JSON, all else CSV. The product is named by its number or
    // identifier.
    static bool ReadFile(const ZOLUnicodeString& path, const ZOLUnicodeString& product,
                         DictionaryImportReport& report, ZOLGYRError& error, const ProgressCB& progress = {});
    // The same from memory; `name` stands for the path in messages.
    static bool ReadText(std::string_view text, Form form, const ZOLUnicodeString& name,
                         const ZOLUnicodeString& product, DictionaryImportReport& report, ZOLGYRError& error,
                         const ProgressCB& progress = {});
};

} // namespace trellis
