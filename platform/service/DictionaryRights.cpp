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

bool BelongsToUser(const CategoryRow& category) {
    const ZOLIQrdPEPerson_var person = GetSecurityManager()->GetCurrentPerson();
    const std::string& organization = person->GetRole()->GetOrganization()->GetName().Bytes();
    return category.owner.empty() || category.owner == person->GetName().Bytes() ||
           (!organization.empty() && category.organization == organization) ||
           person->GetPrivilege() >= OwnerOfAll;
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
    if (!MayChangeDictionary(memory, dictionary, error))
        return false;
    if (IsCorporate(dictionary) || BelongsToUser(category))
        return true;
    error.Set(OtherOwner, {ZOLUnicodeString(category.name), ZOLUnicodeString(category.owner)});
    return false;
}

bool MayChangeCategory(ConfigurationMemory& memory, const RecordOf<ConfigItemRow>& dictionary,
                       const CategoryRow& category, ZOLGYRError& error) {
    return RightTable::IsGranted("ManageOptionDictionaryCorp") ||
           OwnsCategory(memory, dictionary, category, error);
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
