#include "service/DictionaryWork.h"

#include "model/PartQuery.h"
#include "service/DictionaryImport.h"
#include "store/Workspace.h"
#include "values/FailureTrace.h"

namespace trellis {

namespace {

constexpr int NoPart = 60420;
constexpr int SeveralParts = 60421;
constexpr int UnsavedChangesStand = 60422;

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

// What is changed is left for the caller to take back when this fails.
bool Work(ZOLQRDCfgManager& manager, const ZOLUnicodeString& product, const DictionaryWork::Step& step,
          ZOLGYRError& error) {
    const ZOLIQrdConfigItem_var dictionary = DictionaryOf(manager, product, error);
    if (error.GetCode() != 0 || !dictionary || !step(manager, dictionary, error))
        return false;
    if (error.GetCode() == 0)
        manager.Save(error);
    return error.GetCode() == 0;
}

// There was nothing unsaved before, so all that is now came from the work. Events stay queued: what they
// tell of was saved before.
void TakeBack(Workspace& workspace) {
    FailureTrace trace("DictionaryWork::TakeBack"); // what made the work fail is what to tell
    for (const std::shared_ptr<StoredObject>& object : workspace.Unsaved())
        workspace.DiscardUnsaved(*object, trace);
}

} // namespace

bool DictionaryWork::Do(const ZOLUnicodeString& product, const Step& step, ZOLGYRError& error) {
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
    if (Work(*manager, product, step, failure))
        return true;
    TakeBack(*Workspace::Current());
    error = failure;
    return false;
}

} // namespace trellis
