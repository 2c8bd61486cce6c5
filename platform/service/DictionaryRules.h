#pragma once

#include "rules/engine/RuleEngine.h"
#include "rules/language/RuleTerm.h"
#include "service/ConfigurationMemory.h"

#include <map>
#include <string>
#include <vector>

namespace trellis {

// DictionaryRules: the options and rules of some dictionaries, numbered and compiled for the engine. Categories of one
// name are one category, options of one name in it are one option; exclusivity is that of the first, and mandatory is
// what is so in any. It is a picture of the moment in which it was made.
class DictionaryRules {
public:
    struct Option {
        OptionReference name;
        std::string description;
        int category = 0;
    };
    // A rule that binds nothing, and why: it cannot be read, or it names what is not there.
    struct LeftOut {
        RecordOf<ConfigRuleRow> rule;
        ZOLUnicodeString verdict;
    };

    // The picture of these dictionaries, from memory while nothing in them has changed. Null and a code when one
    // cannot be read.
    static std::shared_ptr<DictionaryRules> Of(ConfigurationMemory& memory,
                                               const std::vector<RecordOf<ConfigItemRow>>& dictionaries,
                                               ZOLGYRError& error);

    explicit DictionaryRules(const std::vector<ItemContent*>& contents);

    RuleEngine& Engine() { return _engine; }
    const std::vector<Option>& Options() const { return _options; }
    const CategoryModel& Category(int number) const { return _engine.Model().categories[Place(number)]; }
    const std::string& CategoryDescription(int number) const { return _categoryDescriptions[Place(number)]; }
    // -1 for one that is not there; without a category the only option of that name.
    int NumberOf(const OptionReference& name) const;
    // -1 for none.
    int NumberOfCategory(const std::string& name) const;
    const RecordOf<ConfigRuleRow>& Directive(int number) const { return _directives[Place(number)]; }
    const RecordOf<ConfigRuleRow>& Package(int number) const { return _packages[Place(number)]; }
    const RecordOf<CompatibilityMatrixRow>& Matrix(int number) const { return _matrices[Place(number)]; }
    const std::vector<LeftOut>& RulesLeftOut() const { return _leftOut; }

private:
    static std::size_t Place(int number) { return static_cast<std::size_t>(number); }

    RuleModel Number(const std::vector<ItemContent*>& contents);
    void AddCategories(ItemContent& content, RuleModel& model);
    void AddOptions(ItemContent& content, const CategoryRow& category, int number, RuleModel& model);
    void AddRules(ItemContent& content, RuleModel& model);
    void AddDirective(const RecordOf<ConfigRuleRow>& rule, RuleModel& model);
    void AddPackage(const RecordOf<ConfigRuleRow>& rule, RuleModel& model);
    void AddMatrix(ItemContent& content, const RecordOf<CompatibilityMatrixRow>& matrix, RuleModel& model);
    std::vector<int> CellsOf(const RecordOf<ConfigRuleRow>& row, const std::vector<int>& categories);
    RuleFormula FormulaOf(const RuleTerm& term) const;
    // Whether all that the text names is there; else the rule is left out.
    bool NamesAreThere(const RecordOf<ConfigRuleRow>& rule);

    static constexpr int Several = -2;

    std::vector<Option> _options;
    std::vector<std::string> _categoryDescriptions;
    std::map<std::string, int> _categoryNumbers;
    std::map<OptionReference, int>
        _optionNumbers; // also without category, where it is the only one of its name
    std::vector<RecordOf<ConfigRuleRow>> _directives;
    std::vector<RecordOf<ConfigRuleRow>> _packages;
    std::vector<RecordOf<CompatibilityMatrixRow>> _matrices;
    std::vector<LeftOut> _leftOut;
    RuleEngine _engine; // last: made of what is numbered above
};

} // namespace trellis
