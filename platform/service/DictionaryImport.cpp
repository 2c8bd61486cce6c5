#include "service/DictionaryImport.h"

#include "model/ImportText.h"
#include "model/PartQuery.h"
#include "service/DictionaryPlan.h"
#include "store/Workspace.h"
#include "values/FailureTrace.h"

#include <utility>

namespace trellis {

namespace {

constexpr int NoPart = 60420;
constexpr int SeveralParts = 60421;
constexpr int UnsavedChangesStand = 60422;

constexpr std::size_t LargestFile = 64; // megabytes

DictionaryFile ReadRecords(std::string_view text, DictionaryImport::Form form) {
    DictionaryFile encoding;
    text = ImportText::Checked(text, encoding.problems);
    if (!encoding.problems.empty())
        return encoding;
    return form == DictionaryImport::Form::Json ? ReadDictionaryJson(text) : ReadDictionaryCsv(text);
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
        error.Set(parts.Size() == 0 ? NoPart : SeveralParts, {product});
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
          ZOLQRDCfgManager& manager, DictionaryImportReport& report, const ProgressCB& progress,
          ZOLGYRError& error) {
    const ZOLIQrdConfigItem_var dictionary = DictionaryOf(manager, product, error);
    if (error.GetCode() != 0 || !dictionary)
        return false;
    DictionaryPlan plan(file);
    if (!plan.Fits(manager, dictionary)) {
        report.problems = std::move(file.problems);
        return ImportText::Refuse(name, report.problems, error);
    }
    plan.Apply(manager, dictionary, report, progress, error);
    if (error.GetCode() == 0)
        manager.Save(error);
    return error.GetCode() == 0;
}

// There was nothing unsaved before, so all that is now came from the import. Events stay queued: what they
// tell of was saved before.
void TakeBack(Workspace& workspace) {
    FailureTrace trace("DictionaryImport::TakeBack"); // what made the import fail is what to tell
    for (const std::shared_ptr<StoredObject>& object : workspace.Unsaved())
        workspace.DiscardUnsaved(*object, trace);
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
    ZOLGYRError failure;
    ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(failure);
    if (!manager) {
        error = failure;
        return false;
    }
    if (Workspace::Current()->HasUnsaved()) {
        error.Set(UnsavedChangesStand);
        return false;
    }
    DictionaryFile file = ReadRecords(text, form);
    if (Work(file, name, product, *manager, report, progress, failure))
        return true;
    TakeBack(*Workspace::Current());
    DictionaryImportReport refused;
    refused.problems = std::move(report.problems);
    report = std::move(refused);
    error = failure;
    return false;
}

} // namespace trellis
