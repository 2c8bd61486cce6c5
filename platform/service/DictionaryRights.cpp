#include "service/DictionaryRights.h"

#include "site/RightTable.h"
#include "site/ZOLIQrdSCManager.h"

namespace trellis {

namespace {

constexpr int OtherOwner = 60402;
constexpr int OwnerOfAll = 10; // privilege

bool IsCorporate(const RecordOf<ConfigItemRow>& item) {
    return item->Id() == ConfigItemRow::CorporateId;
}

template <class Row>
bool BelongsToUser(const Row& row) {
    const ZOLIQrdPEPerson_var person = GetSecurityManager()->GetCurrentPerson();
    const std::string& organization = person->GetRole()->GetOrganization()->GetName().Bytes();
    return row.owner.empty() || row.owner == person->GetName().Bytes() ||
           (!organization.empty() && row.organization == organization) ||
           person->GetPrivilege() >= OwnerOfAll;
}

// In the corporate dictionary the right alone decides.
template <class Row>
bool OwnsIn(const RecordOf<ConfigItemRow>& dictionary, const Row& row, ZOLGYRError& error) {
    if (IsCorporate(dictionary) || BelongsToUser(row))
        return true;
    error.Set(OtherOwner, {ZOLUnicodeString(RowDescription<Row>::Display(row)), ZOLUnicodeString(row.owner)});
    return false;
}

} // namespace

bool MayChangeDictionary(ConfigurationMemory& memory, const RecordOf<ConfigItemRow>& dictionary,
                         ZOLGYRError& error) {
    return IsCorporate(dictionary) ? RightTable::Permits("ManageOptionDictionaryCorp", {}, error)
                                   : RightTable::Permits("ManageOptionDictionary",
                                                         memory.SiteOf(dictionary->Row().designUuid), error);
}

bool OwnsCategory(ConfigurationMemory& memory, const RecordOf<ConfigItemRow>& dictionary,
                  const CategoryRow& category, ZOLGYRError& error) {
    return MayChangeDictionary(memory, dictionary, error) && OwnsIn(dictionary, category, error);
}

bool MayChangeCategory(ConfigurationMemory& memory, const RecordOf<ConfigItemRow>& dictionary,
                       const CategoryRow& category, ZOLGYRError& error) {
    return RightTable::IsGranted("ManageOptionDictionaryCorp") ||
           OwnsCategory(memory, dictionary, category, error);
}

bool MayChangeRules(ConfigurationMemory& memory, const RecordOf<ConfigItemRow>& dictionary,
                    ZOLGYRError& error) {
    return IsCorporate(dictionary)
               ? RightTable::Permits("ManageRulesCorp", {}, error)
               : RightTable::Permits("ManageRules", memory.SiteOf(dictionary->Row().designUuid), error);
}

// A row has no owner of its own: it is that of its matrix.
bool MayChangeRule(ConfigurationMemory& memory, const RecordOf<ConfigItemRow>& dictionary,
                   const ConfigRuleRow& rule, ZOLGYRError& error) {
    if (rule.matrix != 0) {
        ItemContent* content = memory.Content(dictionary, error);
        if (!content)
            return false;
        if (const auto matrix = content->Matrix(rule.matrix))
            return MayChangeMatrix(memory, dictionary, matrix->Row(), error);
    }
    return MayChangeRules(memory, dictionary, error) && OwnsIn(dictionary, rule, error);
}

bool MayChangeMatrix(ConfigurationMemory& memory, const RecordOf<ConfigItemRow>& dictionary,
                     const CompatibilityMatrixRow& matrix, ZOLGYRError& error) {
    return MayChangeRules(memory, dictionary, error) && OwnsIn(dictionary, matrix, error);
}

bool MayChangeEffectivity(ConfigurationMemory& memory, const RecordOf<ConfigItemRow>& item,
                          const EffectivityRow& effectivity, ZOLGYRError& error) {
    if (item->Row().status != ConfigItemRow::Dictionary)
        return true;
    ItemContent* content = memory.Content(item, error);
    if (!content)
        return false;
    const RecordOf<CategoryRow> category = content->Category(effectivity.category);
    return category ? MayChangeCategory(memory, item, category->Row(), error)
                    : MayChangeDictionary(memory, item, error);
}

} // namespace trellis
