#pragma once

#include "service/ZOLIQrdCategory.h"
#include "service/ZOLIQrdCompatibilityMatrix.h"
#include "service/ZOLQRDConfigurableObject.h"
#include "site/ZOLIQrdPEPeople.h"
#include "values/ZOLCategory.h"
#include "values/ZOLOption.h"

class ZOLDMInstance;

// ZOLQRDCfgBase: questions to the configuration service that need no manager at hand, and the comparisons by
// which lists are sorted. All static; all work on the open database, and answer empty without one. Nothing
// here saves.
class TRELLIS_API ZOLQRDCfgBase {
public:
    // Takes configurability from a part, with its own config item and that item's effectivities. Its
    // dictionary stays stored and is reached again after SetConfigurable. 20265, 20904; right "Unset".
    static void UnsetConfigurable(const ZOLDMInstance& part, ZOLGYRError& error);

    // The current person's privilege; 0 for somebody unknown.
    static int GetPrivilege();
    // 1 when the current user may change the category: the right holds ("ManageOptionDictionary" at the
    // part's site, in the corporate dictionary "ManageOptionDictionaryCorp"), and in a part's dictionary the
    // owner is the user, or the organization is the user's, or there is no owner. There a privilege of 10 or
    // more stands for both; the corporate right has no such override. 0 for a null handle.
    static int DoIModifyIt(const ZOLIQrdCategory_var& category);
    // The same for a rule and for a matrix, with the rights "ManageRules" and "ManageRulesCorp"; for a row by its
    // matrix.
    static int DoIModifyIt(const ZOLIQrdConfigRule_var& rule);
    static int DoIModifyIt(const ZOLIQrdCompatibilityMatrix_var& matrix);
    // The current person; never null.
    static ZOLIQrdPEPeople_var WhoAmI();
    static ZOLUnicodeString GetUser();
    // 1 when events are published.
    static int WithPubSubEvent();

    // In characters.
    static int GetMaxLengthForRule() { return 65535; }
    static int GetMaxLengthForCHId() { return 40; }

    // Below 0, 0 or above 0, by the octets of the names, as texts compare; for QuickSort, which is stable. A
    // null handle comes first. Those by type compare the names of the categories.
    static int CompareCategoryName(const ZOLIQrdCategory_var* a, const ZOLIQrdCategory_var* b);
    static int CompareCategoryName(const ZOLCategory* a, const ZOLCategory* b);
    static int CompareCategoryName(ZOLCategory* const* a, ZOLCategory* const* b);
    static int CompareOptionName(const ZOLIQrdEffectivity_var* a, const ZOLIQrdEffectivity_var* b);
    static int CompareOptionName(const ZOLQRDCfgEffectivity* a, const ZOLQRDCfgEffectivity* b);
    static int CompareOptionName(const ZOLOption* a, const ZOLOption* b);
    static int CompareOptionName(ZOLOption* const* a, ZOLOption* const* b);
    static int CompareRuleName(const ZOLIQrdConfigRule_var* a, const ZOLIQrdConfigRule_var* b);
    static int CompareMatrixName(const ZOLIQrdCompatibilityMatrix_var* a,
                                 const ZOLIQrdCompatibilityMatrix_var* b);
    // Rows by the option in the column of one category, which is set before (its name; one for the whole process). A
    // row without that cell comes first.
    static void SetCompatibilityRuleCategForCompare(const ZOLUnicodeString& category);
    static int CompareCompatibilityRuleNameForCateg(const ZOLIQrdConfigRule_var* a,
                                                    const ZOLIQrdConfigRule_var* b);
    static int CompareOptionType(const ZOLQRDCfgEffectivity* a, const ZOLQRDCfgEffectivity* b);
    static int CompareOptionType(const ZOLOption* a, const ZOLOption* b);
    static int CompareOptionType(ZOLOption* const* a, ZOLOption* const* b);

    // The options of a part's dictionary as terms. 0, or the number of a failure, with an empty list; a part
    // without dictionary gives 0.
    static int GetOptionsFromProductDictionary(const ZOLDMInstance& part,
                                               ZOLListValZOLQRDCfgEffectivity& options);
    // All options and effectivities of that option name, and all categories of that name, of the whole
    // database.
    static void GetOptByName(const ZOLUnicodeString& name, ZOLListValZOLIQrdEffectivity_var& options);
    static void GetCategByName(const ZOLUnicodeString& name, ZOLListValZOLIQrdCategory_var& categories);
    // The rules of all three types, in the whole database, that name such an option or category.
    static void GetRuleWithOpt(const ZOLUnicodeString& name, ZOLListValZOLIQrdConfigRule_var& rules);
    static void GetRuleWithCateg(const ZOLUnicodeString& name, ZOLListValZOLIQrdConfigRule_var& rules);

    // The mask of allowed effectivity types (as in ZOLQRDCfgManager::ModifyEffTypeForPart), 0 when it was
    // never set; of several parts, what any of them allows.
    static void GetAllowedEffectivityType(const ZOLQRDConfigurableObject& object, long& mask);
    static long GetAllowedEffectivityType(const ZOLListVal<ZOLDMInstance>& parts);
    // 1 when the part is configurable and has a dictionary.
    static int HasDictionnary(const ZOLDMInstance& part);
    // The identifiers of the parts one level below, each once, in order; the list is emptied first. (Not
    // ZOLDMInstance::GetChildPart, which is the child of a link.)
    static void GetChildPart(const ZOLDMInstance& part, ZOLListVal<_SEQUENCE_octet>& children);
};
