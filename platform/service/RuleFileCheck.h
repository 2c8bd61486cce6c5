#pragma once

#include "rules/language/ReferenceCheck.h"
#include "rules/language/RuleFault.h"
#include "service/RuleFile.h"
#include "service/ZOLIQrdCategory.h"

#include <vector>

namespace trellis {

// RuleFileCheck: what is wrong with a file of rules on a dictionary. Every fault is noted with its line, and with its
// place in the line where it has one.
class RuleFileCheck {
public:
    RuleFileCheck(RuleFile& file, const ZOLListValZOLIQrdCategory_var& categories);

    void Run();

private:
    void CheckNames();
    void CheckRule(const RuleFileRule& rule);
    void CheckColumns(const RuleFileMatrix& matrix);
    void CheckCells(const RuleFileMatrix& matrix, const RuleFileRule& row);
    // The fault of a part of a line; number 0 notes nothing.
    void Note(int line, const std::string& source, const RuleFileText& part, const RuleFault& fault);

    RuleFile& _file;
    std::vector<ZOLUnicodeString> _categories; // names
    ReferenceCheck _references;
};

} // namespace trellis
