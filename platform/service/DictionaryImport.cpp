#include "service/DictionaryImport.h"

#include "model/PartQuery.h"
#include "service/DictionaryPlan.h"
#include "store/Workspace.h"

#include <unicode/utf8.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>

namespace trellis {

namespace {

constexpr int Unreadable = 60202;
constexpr int HasProblems = 60203;
constexpr int TooLarge = 60211;
constexpr int NoUtf8 = 60212;
constexpr int NoPart = 60420;
constexpr int SeveralParts = 60421;
constexpr int UnsavedChangesStand = 60422;

constexpr std::size_t LargestFile = std::size_t{64} << 20;
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

bool Fail(int code, const std::vector<ZOLUnicodeString>& parameters, ZOLGYRError& error) {
    error.Set(code);
    for (const ZOLUnicodeString& parameter : parameters)
        error.Add(parameter);
    return false;
}

// Notes each line that is no UTF-8.
void CheckEncoding(std::string_view text, DictionaryFile& file) {
    int line = 1;
    const auto length = static_cast<std::int64_t>(text.size());
    for (std::int64_t at = 0; at < length;) {
        const std::int64_t before = at;
        UChar32 character = 0;
        U8_NEXT(text.data(), at, length, character);
        line += character == '\n';
        if (character >= 0)
            continue;
        file.Note(line, NoUtf8, {std::to_string(before + 1)});
        const std::size_t lineEnd = text.find('\n', static_cast<std::size_t>(before));
        at = lineEnd == std::string_view::npos ? length : static_cast<std::int64_t>(lineEnd);
    }
}

DictionaryFile ReadRecords(std::string_view text, DictionaryImport::Form form) {
    if (text.starts_with(ByteOrderMark))
        text.remove_prefix(ByteOrderMark.size());
    DictionaryFile encoding;
    CheckEncoding(text, encoding);
    if (!encoding.problems.empty())
        return encoding;
    return form == DictionaryImport::Form::Json ? ReadDictionaryJson(text) : ReadDictionaryCsv(text);
}

bool Refuse(DictionaryFile& file, const ZOLUnicodeString& name, DictionaryImportReport& report,
            ZOLGYRError& error) {
    report = {};
    report.problems = std::move(file.problems);
    std::ranges::stable_sort(report.problems, {}, &ImportProblem::line);
    return Fail(HasProblems, {name, ZOLUnicodeString(std::to_string(report.problems.size()))}, error);
}

// The dictionary of a product, made where it has none; null and a code on a failure.
ZOLIQrdConfigItem_var DictionaryOf(ZOLQRDCfgManager& manager, const ZOLUnicodeString& product,
                                   ZOLGYRError& error) {
    if (product == DictionaryImport::Corporate)
        return manager.GetCorporateDictionary();
    ZOLListValZOLDMInstance parts;
    PartQuery::ByWord(product, parts, error);
    if (error.GetCode() != 0)
        return nullptr;
    if (parts.Size() != 1) {
        Fail(parts.Size() == 0 ? NoPart : SeveralParts, {product}, error);
        return nullptr;
    }
    ZOLQRDConfigurableObject object;
    manager.GetConfigurableObject(parts[1], object, error);
    if (error.GetCode() == 0)
        manager.AddDictionary(parts[1], error);
    return object.GetDictionary();
}

// Plan, change and save. What is changed is left for the caller to take back when this fails.
bool Work(DictionaryFile& file, const ZOLUnicodeString& name, const ZOLUnicodeString& product,
          ZOLQRDCfgManager& manager, DictionaryImportReport& report, ZOLGYRError& error) {
    const ZOLIQrdConfigItem_var dictionary = DictionaryOf(manager, product, error);
    if (error.GetCode() != 0 || !dictionary)
        return false;
    DictionaryPlan plan(file);
    if (!plan.Fits(manager, dictionary))
        return Refuse(file, name, report, error);
    plan.Apply(manager, dictionary, report, error);
    if (error.GetCode() == 0)
        manager.Save(error);
    return error.GetCode() == 0;
}

} // namespace

void DictionaryFile::Note(int line, int number, const std::vector<std::string>& parameters) {
    ImportProblem problem;
    problem.line = line;
    problem.error.Set(number, 0);
    for (const std::string& parameter : parameters)
        problem.error.Add(ZOLUnicodeString(parameter));
    problems.push_back(std::move(problem));
}

bool DictionaryImport::ReadFile(const ZOLUnicodeString& path, const ZOLUnicodeString& product,
                                DictionaryImportReport& report, ZOLGYRError& error) {
    report = {};
    errno = 0;
    std::ifstream file(path.Bytes(), std::ios::binary);
    std::string text;
    char buffer[1 << 16];
    while (file && text.size() <= LargestFile && file.read(buffer, sizeof buffer).gcount() > 0)
        text.append(buffer, static_cast<std::size_t>(file.gcount()));
    if (!file.is_open() || file.bad() || (text.empty() && errno != 0))
        return Fail(Unreadable, {path, ZOLUnicodeString(std::strerror(errno))}, error);
    if (text.size() > LargestFile) {
        DictionaryFile tooLarge;
        tooLarge.Note(0, TooLarge, {std::to_string(LargestFile >> 20)});
        return Refuse(tooLarge, path, report, error);
    }
    const bool isJson = path.Bytes().ends_with(".json");
    return ReadText(text, isJson ? Form::Json : Form::Csv, path, product, report, error);
}

bool DictionaryImport::ReadText(std::string_view text, Form form, const ZOLUnicodeString& name,
                                const ZOLUnicodeString& product, DictionaryImportReport& report,
                                ZOLGYRError& error) {
    report = {};
    ZOLGYRError failure;
    ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(failure);
    if (!manager) {
        error = failure;
        return false;
    }
    if (Workspace::Current()->HasUnsaved())
        return Fail(UnsavedChangesStand, {}, error);
    DictionaryFile file = ReadRecords(text, form);
    if (Work(file, name, product, *manager, report, failure))
        return true;
    ZOLGYRError ignored; // what made it fail is what to tell
    manager->DiscardUnsaved(ignored);
    const std::vector<ImportProblem> problems = std::move(report.problems);
    report = {};
    report.problems = problems;
    error = failure;
    return false;
}

} // namespace trellis
