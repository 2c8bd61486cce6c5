#include "service/RuleImport.h"

#include "model/ImportText.h"
#include "service/DictionaryWork.h"
#include "service/RuleFile.h"
#include "service/RuleFileCheck.h"
#include "service/RulePlan.h"
#include "values/Utf8Check.h"

#include <utility>

namespace trellis {

namespace {

constexpr std::size_t LargestFile = 64; // megabytes

RuleFile Read(std::string_view text) {
    RuleFile encoding;
    text = CheckedUtf8(text, encoding.problems);
    return encoding.problems.empty() ? RuleFile::Read(text) : encoding;
}

} // namespace

bool RuleImport::ReadFile(const ZOLUnicodeString& path, const ZOLUnicodeString& product, Others others,
                          RuleImportReport& report, ZOLGYRError& error, const ProgressCB& progress) {
    report = {};
    std::string text;
    return ImportText::ReadFile(path, LargestFile, text, report.problems, error) &&
           ReadText(text, path, product, others, report, error, progress);
}

bool RuleImport::ReadText(std::string_view text, const ZOLUnicodeString& name,
                          const ZOLUnicodeString& product, Others others, RuleImportReport& report,
                          ZOLGYRError& error, const ProgressCB& progress) {
    report = {};
    const auto apply = [&](ZOLQRDCfgManager& manager, const ZOLIQrdConfigItem_var& dictionary,
                           ZOLGYRError& failure) {
        RuleFile file = Read(text);
        ZOLListValZOLIQrdCategory_var categories;
        manager.GetCategoriesFromDictionary(dictionary, categories);
        RuleFileCheck(file, categories).Run();
        if (file.problems.empty())
            RulePlan(file, manager, dictionary, report).Apply(others, progress, failure);
        if (failure.GetCode() != 0 || file.problems.empty())
            return failure.GetCode() == 0;
        report.problems = std::move(file.problems);
        return ImportText::Refuse(name, report.problems, failure);
    };
    if (DictionaryWork::Do(product, apply, error))
        return true;
    RuleImportReport refused;
    refused.problems = std::move(report.problems);
    report = std::move(refused);
    return false;
}

} // namespace trellis
