#pragma once

#include "values/ImportProblem.h"
#include "values/ProgressCB.h"
#include "values/TrellisApi.h"

#include <string_view>

namespace trellis {

// What an import of rules found and did. Nothing was written when problems stand.
struct RuleImportReport {
    std::vector<ImportProblem> problems; // in order of lines
    int newRules = 0;                    // directive rules and packages
    int changedRules = 0;
    int newMatrices = 0;
    int changedMatrices = 0;
    int removed = 0; // rules and matrices
};

// RuleImport: brings rules, packages and matrices into the dictionary of a product, or into the corporate one, whole
// or not at all, and saves. docs/guide/rules.md tells the form of the file. A rule or matrix that the dictionary has
// already under the same name becomes as the file says, the rows of a matrix included; a rule without name is the one
// of the same text. What is new belongs to the current user.
//
// A line that is wrong is reported with one of 60212, 60400, 60741 to 60746, 60748, 50082, or, with the place in the line,
// 60751 to 60769. Errors beside those of the file: 60201, 60202, 60203, 60420 to 60422 and 20265 as those of an
// import of a dictionary; refused rights, owners (60402), and the numbers of a failed save. None of them changes
// anything, in the store or in memory.
class TRELLIS_API RuleImport {
public:
    // What becomes of the rules and matrices that the file does not name.
    enum class Others { Keep, Remove };

    // The product is named by its number or identifier, or is the word "corporate".
    static bool ReadFile(const ZOLUnicodeString& path, const ZOLUnicodeString& product, Others others,
                         RuleImportReport& report, ZOLGYRError& error, const ProgressCB& progress = {});
    // The same from memory; `name` stands for the path in messages.
    static bool ReadText(std::string_view text, const ZOLUnicodeString& name, const ZOLUnicodeString& product,
                         Others others, RuleImportReport& report, ZOLGYRError& error,
                         const ProgressCB& progress = {});
};

} // namespace trellis
