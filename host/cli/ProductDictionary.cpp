#include "cli/ProductDictionary.h"

#include "service/DictionaryImport.h"
#include "service/ZOLQRDCfgManager.h"
#include "session/PartWord.h"
#include "values/ZOLGYRError.h"

namespace trellis {

namespace {

constexpr int NoDictionary = 60630;

} // namespace

ProductDictionary ProductDictionary::OfWord(const ZOLUnicodeString& word, ZOLGYRError& error) {
    ProductDictionary product;
    ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    if (!manager)
        return product;
    if (word == DictionaryImport::Corporate) {
        product.dictionary = manager->GetCorporateDictionary();
    } else {
        product.part = PartOfWord(word, error);
        ZOLQRDConfigurableObject object;
        if (error.GetCode() == 0)
            manager->GetConfigurableObject(product.part, object, error);
        product.dictionary = object.GetDictionary();
    }
    if (!product.dictionary && error.GetCode() == 0)
        error.Set(NoDictionary, {word});
    return product;
}

} // namespace trellis
