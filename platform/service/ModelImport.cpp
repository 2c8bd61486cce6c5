#include "service/ModelImport.h"

#include "model/ImportText.h"
#include "rules/language/RuleWriter.h"
#include "rules/readers/DimacsReader.h"
#include "rules/readers/UvlReader.h"
#include "service/DictionaryPlan.h"
#include "service/DictionaryWork.h"
#include "service/ZOLQRDCfgBase.h"
#include "values/ProgressCount.h"

#include <utility>

namespace trellis {

namespace {

constexpr int DictionaryNotEmpty = 60423;
constexpr int RuleTooLong = 60740;

constexpr std::size_t LargestFile = 64; // megabytes

struct WrittenRule {
    ZOLUnicodeString name;
    ZOLUnicodeString text;
};

// The texts of the rules; one that no rule can hold is a problem.
std::vector<WrittenRule> TextsOf(const VariabilityModel& model, std::vector<ImportProblem>& problems) {
    const RuleWriter writer(RuleWords::Catalogue());
    const int longest = ZOLQRDCfgBase::GetMaxLengthForRule();
    std::vector<WrittenRule> texts;
    texts.reserve(model.rules.size());
    for (const ModelRule& rule : model.rules) {
        texts.push_back({rule.name, writer.Directive(rule.term)});
        const int length = texts.back().text.GetLengthInChar();
        if (length > longest)
            ImportText::Note(problems, rule.line, RuleTooLong,
                             {std::to_string(length), std::to_string(longest)});
    }
    return texts;
}

// Categories and options as the file of a dictionary would hold them.
DictionaryFile RecordsOf(const VariabilityModel& model) {
    DictionaryFile file;
    for (const ModelCategory& category : model.categories) {
        DictionaryRecord record;
        record.name = category.name;
        record.description = category.description;
        record.mandatory = category.isMandatory ? "yes" : "no";
        record.exclusive = category.isExclusive ? "yes" : "no";
        file.records.push_back(std::move(record));
        for (const ModelOption& option : category.options) {
            DictionaryRecord optionRecord;
            optionRecord.kind = DictionaryRecord::Kind::Option;
            optionRecord.name = option.name;
            optionRecord.description = option.description;
            optionRecord.category = category.name;
            file.records.push_back(std::move(optionRecord));
        }
    }
    return file;
}

bool IsEmpty(ZOLQRDCfgManager& manager, const ZOLIQrdConfigItem_var& dictionary) {
    ZOLListValZOLIQrdCategory_var categories;
    ZOLListValZOLIQrdConfigRule_var rules;
    manager.GetCategoriesFromDictionary(dictionary, categories);
    manager.GetConfigRulesFromDictionary(dictionary, rules);
    return categories.Size() == 0 && rules.Size() == 0;
}

void AddRules(ZOLQRDCfgManager& manager, const ZOLIQrdConfigItem_var& dictionary,
              const std::vector<WrittenRule>& rules, const ProgressCB& progress, ZOLGYRError& error) {
    ProgressCount count(progress, "rules", rules.size());
    for (const WrittenRule& rule : rules) {
        manager.AddConfigRuleToDictionary(dictionary, rule.name, rule.text, ZOLDirectiveRuleType, "", error);
        if (error.GetCode() != 0)
            return;
        count.Step();
    }
}

// Carries the model out, unsaved, and counts; false with a code when something is in the way.
bool Apply(const ModelReading& reading, const ZOLUnicodeString& name, ZOLQRDCfgManager& manager,
           const ZOLIQrdConfigItem_var& dictionary, ModelImportReport& report, const ProgressCB& progress,
           ZOLGYRError& error) {
    DictionaryFile file = RecordsOf(reading.model);
    file.problems = reading.problems;
    const std::vector<WrittenRule> rules = TextsOf(reading.model, file.problems);
    DictionaryPlan plan(file);
    if (!plan.Fits(manager, dictionary)) {
        report.problems = std::move(file.problems);
        return ImportText::Refuse(name, report.problems, error);
    }
    DictionaryImportReport counts;
    plan.Apply(manager, dictionary, counts, progress, error);
    if (error.GetCode() == 0)
        AddRules(manager, dictionary, rules, progress, error);
    report.categories = counts.newCategories;
    report.options = counts.newOptions;
    report.rules = static_cast<int>(rules.size());
    return error.GetCode() == 0;
}

} // namespace

bool ModelImport::ReadFile(const ZOLUnicodeString& path, const ZOLUnicodeString& product,
                           ModelImportReport& report, ZOLGYRError& error, const ProgressCB& progress) {
    report = {};
    const bool isDimacs = path.Bytes().ends_with(".cnf") || path.Bytes().ends_with(".dimacs");
    std::string text;
    return ImportText::ReadFile(path, LargestFile, text, report.problems, error) &&
           ReadText(text, isDimacs ? Form::Dimacs : Form::Uvl, path, product, report, error, progress);
}

bool ModelImport::ReadText(std::string_view text, Form form, const ZOLUnicodeString& name,
                           const ZOLUnicodeString& product, ModelImportReport& report, ZOLGYRError& error,
                           const ProgressCB& progress) {
    report = {};
    const auto apply = [&](ZOLQRDCfgManager& manager, const ZOLIQrdConfigItem_var& dictionary,
                           ZOLGYRError& failure) {
        if (!IsEmpty(manager, dictionary)) {
            failure.Set(DictionaryNotEmpty, {product});
            return false;
        }
        const ModelReading reading = form == Form::Dimacs ? DimacsReader::Read(text) : UvlReader::Read(text);
        return Apply(reading, name, manager, dictionary, report, progress, failure);
    };
    if (DictionaryWork::Do(product, apply, error))
        return true;
    ModelImportReport refused;
    refused.problems = std::move(report.problems);
    report = std::move(refused);
    return false;
}

} // namespace trellis
