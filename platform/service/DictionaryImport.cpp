#include "service/DictionaryImport.h"

#include "model/ImportText.h"
#include "service/DictionaryPlan.h"
#include "service/DictionaryWork.h"
#include "values/Utf8Check.h"

#include <utility>

namespace trellis {

namespace {

constexpr std::size_t LargestFile = 64; // megabytes

DictionaryFile ReadRecords(std::string_view text, DictionaryImport::Form form) {
    DictionaryFile encoding;
    text = CheckedUtf8(text, encoding.problems);
    if (!encoding.problems.empty())
        return encoding;
    return form == DictionaryImport::Form::Json ? ReadDictionaryJson(text) : ReadDictionaryCsv(text);
}

} // namespace

void DictionaryFile::Note(int line, int number, const std::vector<std::string>& parameters) {
    ImportText::Note(problems, line, number, parameters);
}

bool DictionaryImport::ReadFile(const ZOLUnicodeString& path, const ZOLUnicodeString& product,
                                DictionaryImportReport& report, ZOLGYRError& error,
                                const ProgressCB& progress) {
    report = {};
    std::string text;
    return ImportText::ReadFile(path, LargestFile, text, report.problems, error) &&
           ReadText(text, ImportText::FormOf(path), path, product, report, error, progress);
}

bool DictionaryImport::ReadText(std::string_view text, Form form, const ZOLUnicodeString& name,
                                const ZOLUnicodeString& product, DictionaryImportReport& report,
                                ZOLGYRError& error, const ProgressCB& progress) {
    report = {};
    const auto apply = [&](ZOLQRDCfgManager& manager, const ZOLIQrdConfigItem_var& dictionary,
                           ZOLGYRError& failure) {
        DictionaryFile file = ReadRecords(text, form);
        DictionaryPlan plan(file);
        if (!plan.Fits(manager, dictionary)) {
            report.problems = std::move(file.problems);
            return ImportText::Refuse(name, report.problems, failure);
        }
        plan.Apply(manager, dictionary, report, progress, failure);
        return failure.GetCode() == 0;
    };
    if (DictionaryWork::Do(product, apply, error))
        return true;
    DictionaryImportReport refused;
    refused.problems = std::move(report.problems);
    report = std::move(refused);
    return false;
}

} // namespace trellis
