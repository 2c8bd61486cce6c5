#pragma once

#include "service/ConfigurationMemory.h"

namespace trellis {

// RuleEditor: reads the rules and matrices of a dictionary, adds to them and takes from them, with their rules of
// names, rights and owners.
class RuleEditor {
public:
    explicit RuleEditor(ConfigurationMemory& memory) : _memory(memory) {}

    void GetRules(const RecordOf<ConfigItemRow>& dictionary, ZOLListValZOLIQrdConfigRule_var& rules);
    void GetMatrices(const RecordOf<ConfigItemRow>& dictionary,
                     ZOLListValZOLIQrdCompatibilityMatrix_var& matrices);
    // With `judgesName` a taken name gives its holder and 50075; for rows, which have none, an equal row gives null
    // and 50082.
    ZOLIQrdConfigRule_var AddRule(const RecordOf<ConfigItemRow>& dictionary, const ZOLUnicodeString& name,
                                  const ZOLUnicodeString& text, ZOLConfigRuleType type,
                                  const ZOLUnicodeString& description, bool judgesName, ZOLGYRError& error);
    void RemoveRule(const ZOLIQrdConfigRule_var& rule, ZOLGYRError& error);
    ZOLIQrdCompatibilityMatrix_var AddMatrix(const RecordOf<ConfigItemRow>& dictionary,
                                             const ZOLUnicodeString& name,
                                             const ZOLUnicodeString& description, ZOLGYRError& error);
    void RemoveMatrix(const ZOLIQrdCompatibilityMatrix_var& matrix, ZOLGYRError& error);

    // The rules of the whole database that name an option, or a category, by the index of what rules name.
    void GetRulesNaming(std::string RuleReferenceRow::*part, const std::string& name,
                        ZOLListValZOLIQrdConfigRule_var& rules);

private:
    ConfigurationMemory& _memory;
};

} // namespace trellis
