#pragma once

#include "service/ZOLIQrdCategory.h"
#include "service/ZOLIQrdCompatibilityMatrix.h"
#include "service/ZOLIQrdConfigItem.h"
#include "service/ZOLQRDConfigurableObject.h"

#include <memory>

class ZOLDMInstance;

namespace trellis {

class ConfigurationMemory;

} // namespace trellis

// ZOLQRDCfgManager: makes parts configurable, keeps dictionaries, and saves all of it.
//
// Memory is the truth between saves: every change is seen at once by all, and the next Save of anybody writes
// it. Names are free as soon as they are removed in memory. Only what says so saves. Operations set a code on
// failure, never clear the carrier, and leave memory as it was when they fail. A null handle gives an empty
// list, a null result, or nothing. Lists are emptied first and come in order of creation.
//
// Where a part is named by its identifier, 20904 (identifier) tells that no part has it. Store failures are
// 20901 to 20904. Refused rights are the numbers of RightTable with the user's name; a privilege overrides
// where that table says so.
class TRELLIS_API ZOLQRDCfgManager {
public:
    // The manager of the open database, to be fetched anew in each operation; null and 60201 while none is
    // open.
    static ZOLQRDCfgManager* CurrentCfgManager(ZOLGYRError& error);
    ~ZOLQRDCfgManager();
    ZOLQRDCfgManager(const ZOLQRDCfgManager&) = delete;
    ZOLQRDCfgManager& operator=(const ZOLQRDCfgManager&) = delete;

    // Writes every unsaved change of the service in one transaction. Runs also when a code stands, and then
    // leaves that code. A refusal writes nothing, leaves memory changed, and can be repeated: 20902 (object,
    // user) when another changed it, 20904 (object) when another removed it, 20903, 20901.
    void Save(ZOLGYRError& error);
    // Brings one dictionary or config item with all that is in it back to what is stored. (DatabaseSession
    // lists the unsaved changes, and discards all at once.)
    void DiscardUnsaved(const ZOLIQrdConfigItem_var& item, ZOLGYRError& error);

    // Fills the object of a configurable part. 20265 exactly when the part is there and not configurable.
    void GetConfigurableObject(const ZOLDMInstance& part, ZOLQRDConfigurableObject& object,
                               ZOLGYRError& error) const;
    void GetConfigurableObject(const _SEQUENCE_octet& part, ZOLQRDConfigurableObject& object,
                               ZOLGYRError& error) const;
    // Makes a part configurable; one that is so already stays as it is. Right "Set". A dictionary that the
    // part had before is reached again.
    void SetConfigurable(const ZOLDMInstance& part, ZOLGYRError& error);
    // Sets the mask of allowed effectivity types: 2 range, 8 option, 16 modification, 32 date, 64 personal.
    // 20265. Right "Set".
    void ModifyEffTypeForPart(const ZOLDMInstance& part, long mask, ZOLGYRError& error);

    // Makes the empty dictionary of a configurable part; one that is there stays. 20265. No right is asked:
    // panels make it by opening.
    void AddDictionary(const ZOLDMInstance& part, ZOLGYRError& error);
    void AddDictionary(const _SEQUENCE_octet& part, ZOLGYRError& error);
    // The dictionary of a configurable part, or null.
    void GetDictionary(const _SEQUENCE_octet& part, ZOLIQrdConfigItem_var& dictionary) const;
    // The one that all parts share; null only when the store cannot be read.
    ZOLIQrdConfigItem_var GetCorporateDictionary() const;
    // Removes a part's dictionary with all that is in it, rules and matrices too. Effectivities on links keep the names of its
    // options. 20265; 20904 when there is none. Right "DeleteOptionDictionary".
    void DeleteDictionary(const ZOLDMInstance& part, ZOLGYRError& error);
    // Forgets what memory holds of a dictionary, unsaved changes too; the next access reads anew. Handles
    // stay alive, equal those read later, and answer with what is stored. The number is 0.
    void UnloadDictionary(const ZOLIQrdConfigItem_var& dictionary, int);

    void GetCategoriesFromDictionary(const ZOLIQrdConfigItem_var& dictionary,
                                     ZOLListValZOLIQrdCategory_var& categories) const;
    // Options as terms: name, category, description, used mark.
    void GetOptionsFromDictionary(const ZOLIQrdConfigItem_var& dictionary,
                                  ZOLListValZOLQRDCfgEffectivity& options) const;

    // Names are 1 to 40 characters, else 60400 (name). Adding and removing need the right
    // "ManageOptionDictionary" at the part's site, in the corporate dictionary "ManageOptionDictionaryCorp";
    // with options, and removing, also the ownership of the category that DoIModifyIt asks for (60402:
    // category, owner). A new category belongs to the current user and organization. 50074 when the name is
    // taken: then its holder comes back, and the caller may clear the code and go on with it.
    ZOLIQrdCategory_var AddCategoryToDictionary(const ZOLIQrdConfigItem_var& dictionary,
                                                const ZOLUnicodeString& name,
                                                const ZOLUnicodeString& description, int exclusivity,
                                                int mandatory, ZOLGYRError& error);
    // Null and 50073 when the name is taken anywhere in the dictionary; null and 60401 (category) when the
    // category is not of this dictionary.
    ZOLIQrdEffectivity_var AddOptionToDictionary(const ZOLIQrdConfigItem_var& dictionary,
                                                 const ZOLIQrdCategory_var& category,
                                                 const ZOLUnicodeString& name,
                                                 const ZOLUnicodeString& description, ZOLGYRError& error);
    // With its options and defaults. Whether it is used is the caller's question.
    void RemoveCategoryFromDictionary(const ZOLIQrdCategory_var& category, ZOLGYRError& error);
    // Also out of its category and of the defaults, if it is still there. 60403 for an effectivity on links.
    void RemoveOptionFromDictionary(const ZOLIQrdEffectivity_var& option, ZOLGYRError& error);

    // Rules and matrices. Adding and removing need the right "ManageRules" at the part's site, in the corporate
    // dictionary "ManageRulesCorp"; removing also the ownership that DoIModifyIt asks for (60402: name, owner). What is
    // added belongs to the current user and organization. Names of rules are at most 40 characters and may be empty,
    // those of matrices have at least one; else 60400 (name). Texts are in the words of the user's language and are not
    // checked.
    //
    // 50075 when a rule of this type has the name: then its holder comes back, and the caller may clear the code. A
    // row (ZOLCompatibilityRuleType) that joins the same options as one that is there, in any matrix, gives null and
    // 50082.
    ZOLIQrdConfigRule_var AddConfigRuleToDictionary(const ZOLIQrdConfigItem_var& dictionary,
                                                    const ZOLUnicodeString& name,
                                                    const ZOLUnicodeString& text, ZOLConfigRuleType type,
                                                    const ZOLUnicodeString& description, ZOLGYRError& error);
    // The same without a look at what is there: for callers who removed the holder before.
    ZOLIQrdConfigRule_var CreateConfigRuleToDictionary(const ZOLIQrdConfigItem_var& dictionary,
                                                       const ZOLUnicodeString& name,
                                                       const ZOLUnicodeString& text, ZOLConfigRuleType type,
                                                       const ZOLUnicodeString& description,
                                                       ZOLGYRError& error);
    // A row also out of its matrix.
    void RemoveConfigRuleFromDictionary(const ZOLIQrdConfigRule_var& rule, ZOLGYRError& error);
    // Rules of all three types. The number is 1.
    void GetConfigRulesFromDictionary(const ZOLIQrdConfigItem_var& dictionary,
                                      ZOLListValZOLIQrdConfigRule_var& rules, int = 1) const;
    // Without columns and rows. 50076 when the name is taken: then its holder comes back.
    ZOLIQrdCompatibilityMatrix_var AddCompatibilityMatrixToDictionary(const ZOLIQrdConfigItem_var& dictionary,
                                                                      const ZOLUnicodeString& name,
                                                                      const ZOLUnicodeString& description,
                                                                      ZOLGYRError& error);
    // With all its rows.
    void RemoveCompatibilityMatrixFromDictionary(const ZOLIQrdCompatibilityMatrix_var& matrix,
                                                 ZOLGYRError& error);
    void GetCompatibilityMatricesFromDictionary(const ZOLIQrdConfigItem_var& dictionary,
                                                ZOLListValZOLIQrdCompatibilityMatrix_var& matrices) const;

private:
    friend class trellis::ConfigurationMemory;

    explicit ZOLQRDCfgManager(std::shared_ptr<trellis::ConfigurationMemory> memory);

    std::shared_ptr<trellis::ConfigurationMemory> _memory;
};
