#include "service/ZOLQRDCfgBase.h"

#include "model/ObjectIdentifier.h"
#include "model/ZOLDMInstance.h"
#include "rules/language/RuleText.h"
#include "service/DictionaryEditor.h"
#include "service/DictionaryRights.h"
#include "service/PartConfiguration.h"
#include "service/RuleEditor.h"
#include "service/StoredCategory.h"
#include "service/StoredMatrix.h"
#include "service/StoredRule.h"
#include "site/ZOLIQrdSCManager.h"
#include "values/FailureTrace.h"

using trellis::CategoryRow;
using trellis::ConfigItemRow;
using trellis::ConfigurationMemory;
using trellis::EffectivityRow;
using trellis::PartConfiguration;
using trellis::StoreQuery;

namespace {

std::string TextOf(const ZOLDMInstance& part) {
    return trellis::ObjectIdentifier(part.GetUUId()).Text();
}

int Compare(const ZOLUnicodeString& a, const ZOLUnicodeString& b) {
    return a.Bytes().compare(b.Bytes());
}

// Null handles before all others.
template <class Handle, class Getter>
int CompareHandles(const Handle& a, const Handle& b, Getter getter) {
    if (!a || !b)
        return static_cast<int>(static_cast<bool>(a)) - static_cast<int>(static_cast<bool>(b));
    return Compare(((*a).*getter)(), ((*b).*getter)());
}

std::string ComparedCategory; // of rows

std::string ComparedOption(const ZOLIQrdConfigRule_var& row) {
    if (row)
        for (const trellis::OptionReference& cell : trellis::RuleText::References(row->GetRuleString()))
            if (cell.category == ComparedCategory)
                return cell.option;
    return {};
}

} // namespace

void ZOLQRDCfgBase::UnsetConfigurable(const ZOLDMInstance& part, ZOLGYRError& error) {
    if (const auto memory = ConfigurationMemory::Current(error))
        PartConfiguration(*memory).Unset(TextOf(part), error);
}

int ZOLQRDCfgBase::GetPrivilege() {
    return GetSecurityManager()->GetCurrentPerson()->GetPrivilege();
}

int ZOLQRDCfgBase::DoIModifyIt(const ZOLIQrdCategory_var& category) {
    const auto* stored = dynamic_cast<const trellis::StoredCategory*>(category.Get());
    ZOLGYRError refusal;
    const auto memory = stored ? ConfigurationMemory::Current(refusal) : nullptr;
    return memory && trellis::OwnsCategory(*memory, stored->Item(), stored->Record()->Row(), refusal);
}

int ZOLQRDCfgBase::DoIModifyIt(const ZOLIQrdConfigRule_var& rule) {
    const auto* stored = dynamic_cast<const trellis::StoredRule*>(rule.Get());
    ZOLGYRError refusal;
    const auto memory = stored ? ConfigurationMemory::Current(refusal) : nullptr;
    return memory && trellis::MayChangeRule(*memory, stored->Item(), stored->Record()->Row(), refusal);
}

int ZOLQRDCfgBase::DoIModifyIt(const ZOLIQrdCompatibilityMatrix_var& matrix) {
    const auto* stored = dynamic_cast<const trellis::StoredMatrix*>(matrix.Get());
    ZOLGYRError refusal;
    const auto memory = stored ? ConfigurationMemory::Current(refusal) : nullptr;
    return memory && trellis::MayChangeMatrix(*memory, stored->Item(), stored->Record()->Row(), refusal);
}

ZOLIQrdPEPeople_var ZOLQRDCfgBase::WhoAmI() {
    return GetSecurityManager()->GetCurrentPerson();
}

ZOLUnicodeString ZOLQRDCfgBase::GetUser() {
    return WhoAmI()->GetName();
}

int ZOLQRDCfgBase::WithPubSubEvent() {
    return ZOLDMInstance::MustSendPubSubEvent();
}

int ZOLQRDCfgBase::CompareCategoryName(const ZOLIQrdCategory_var* a, const ZOLIQrdCategory_var* b) {
    return CompareHandles(*a, *b, &ZOLIQrdCategory::GetName);
}

int ZOLQRDCfgBase::CompareCategoryName(const ZOLCategory* a, const ZOLCategory* b) {
    return Compare(a->GetName(), b->GetName());
}

int ZOLQRDCfgBase::CompareCategoryName(ZOLCategory* const* a, ZOLCategory* const* b) {
    return Compare((*a)->GetName(), (*b)->GetName());
}

int ZOLQRDCfgBase::CompareOptionName(const ZOLIQrdEffectivity_var* a, const ZOLIQrdEffectivity_var* b) {
    return CompareHandles(*a, *b, &ZOLIQrdEffectivity::GetOption);
}

int ZOLQRDCfgBase::CompareOptionName(const ZOLQRDCfgEffectivity* a, const ZOLQRDCfgEffectivity* b) {
    return Compare(a->GetName(), b->GetName());
}

int ZOLQRDCfgBase::CompareOptionName(const ZOLOption* a, const ZOLOption* b) {
    return Compare(a->GetName(), b->GetName());
}

int ZOLQRDCfgBase::CompareOptionName(ZOLOption* const* a, ZOLOption* const* b) {
    return Compare((*a)->GetName(), (*b)->GetName());
}

int ZOLQRDCfgBase::CompareRuleName(const ZOLIQrdConfigRule_var* a, const ZOLIQrdConfigRule_var* b) {
    return CompareHandles(*a, *b, &ZOLIQrdConfigRule::GetName);
}

int ZOLQRDCfgBase::CompareMatrixName(const ZOLIQrdCompatibilityMatrix_var* a,
                                     const ZOLIQrdCompatibilityMatrix_var* b) {
    return CompareHandles(*a, *b, &ZOLIQrdCompatibilityMatrix::GetName);
}

void ZOLQRDCfgBase::SetCompatibilityRuleCategForCompare(const ZOLUnicodeString& category) {
    ComparedCategory = category.Bytes();
}

int ZOLQRDCfgBase::CompareCompatibilityRuleNameForCateg(const ZOLIQrdConfigRule_var* a,
                                                        const ZOLIQrdConfigRule_var* b) {
    return ComparedOption(*a).compare(ComparedOption(*b));
}

int ZOLQRDCfgBase::CompareOptionType(const ZOLQRDCfgEffectivity* a, const ZOLQRDCfgEffectivity* b) {
    return Compare(a->GetCategory(), b->GetCategory());
}

int ZOLQRDCfgBase::CompareOptionType(const ZOLOption* a, const ZOLOption* b) {
    return Compare(a->GetCategory(), b->GetCategory());
}

int ZOLQRDCfgBase::CompareOptionType(ZOLOption* const* a, ZOLOption* const* b) {
    return Compare((*a)->GetCategory(), (*b)->GetCategory());
}

int ZOLQRDCfgBase::GetOptionsFromProductDictionary(const ZOLDMInstance& part,
                                                   ZOLListValZOLQRDCfgEffectivity& options) {
    options.RemoveAll();
    ZOLGYRError error;
    const auto memory = ConfigurationMemory::Current(error);
    if (!memory || !PartConfiguration(*memory).Find(TextOf(part), error))
        return error.GetCode();
    const auto dictionary = memory->FindItem(TextOf(part), ConfigItemRow::Dictionary, error);
    if (dictionary)
        trellis::DictionaryEditor(*memory).GetOptions(dictionary, options, error);
    return error.GetCode();
}

void ZOLQRDCfgBase::GetOptByName(const ZOLUnicodeString& name, ZOLListValZOLIQrdEffectivity_var& options) {
    options.RemoveAll();
    trellis::FailureTrace trace("ZOLQRDCfgBase::GetOptByName");
    const auto memory = ConfigurationMemory::Current(trace);
    if (!memory)
        return;
    const auto found = memory->Store().Find(
        StoreQuery<EffectivityRow>().Where(&EffectivityRow::optionName, name.Bytes()), trace);
    for (const auto& option : found)
        if (const auto item = memory->ItemOfId(option->Row().configItem, trace))
            options.Append(memory->Handle(option, item));
}

void ZOLQRDCfgBase::GetCategByName(const ZOLUnicodeString& name, ZOLListValZOLIQrdCategory_var& categories) {
    categories.RemoveAll();
    trellis::FailureTrace trace("ZOLQRDCfgBase::GetCategByName");
    const auto memory = ConfigurationMemory::Current(trace);
    if (!memory)
        return;
    const auto found =
        memory->Store().Find(StoreQuery<CategoryRow>().Where(&CategoryRow::name, name.Bytes()), trace);
    for (const auto& category : found)
        if (const auto item = memory->ItemOfId(category->Row().configItem, trace))
            categories.Append(memory->Handle(category, item));
}

void ZOLQRDCfgBase::GetRuleWithOpt(const ZOLUnicodeString& name, ZOLListValZOLIQrdConfigRule_var& rules) {
    rules.RemoveAll();
    trellis::FailureTrace trace("ZOLQRDCfgBase::GetRuleWithOpt");
    if (const auto memory = ConfigurationMemory::Current(trace))
        trellis::RuleEditor(*memory).GetRulesNaming(&trellis::RuleReferenceRow::optionName, name.Bytes(),
                                                    rules);
}

void ZOLQRDCfgBase::GetRuleWithCateg(const ZOLUnicodeString& name, ZOLListValZOLIQrdConfigRule_var& rules) {
    rules.RemoveAll();
    trellis::FailureTrace trace("ZOLQRDCfgBase::GetRuleWithCateg");
    if (const auto memory = ConfigurationMemory::Current(trace))
        trellis::RuleEditor(*memory).GetRulesNaming(&trellis::RuleReferenceRow::categoryName, name.Bytes(),
                                                    rules);
}

void ZOLQRDCfgBase::GetAllowedEffectivityType(const ZOLQRDConfigurableObject& object, long& mask) {
    mask = 0;
    trellis::FailureTrace trace("ZOLQRDCfgBase::GetAllowedEffectivityType");
    const auto memory = ConfigurationMemory::Current(trace);
    const auto part =
        memory ? memory->FindPart(trellis::ObjectIdentifier(object.GetObject()).Text(), trace) : nullptr;
    if (part)
        mask = static_cast<long>(part->Row().typeMask);
}

long ZOLQRDCfgBase::GetAllowedEffectivityType(const ZOLListValZOLDMInstance& parts) {
    long all = 0;
    for (const ZOLDMInstance& part : parts) {
        long mask = 0;
        GetAllowedEffectivityType(ZOLQRDConfigurableObject(part.GetUUId()), mask);
        all |= mask;
    }
    return all;
}

int ZOLQRDCfgBase::HasDictionnary(const ZOLDMInstance& part) {
    return ZOLQRDConfigurableObject(part.GetUUId()).GetDictionary() != NULL_var;
}

void ZOLQRDCfgBase::GetChildPart(const ZOLDMInstance& part, ZOLListVal<_SEQUENCE_octet>& children) {
    children.RemoveAll();
    ZOLListValZOLDMInstance parts;
    part.GetChildParts(parts);
    for (const ZOLDMInstance& child : parts)
        children.Append(child.GetUUId());
}
