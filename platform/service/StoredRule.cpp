#include "service/StoredRule.h"

#include "rules/language/RuleText.h"
#include "service/DictionaryRights.h"
#include "service/ItemEditor.h"
#include "service/RuleRowEditor.h"

namespace trellis {

bool StoredRule::MayChange(ConfigurationMemory& memory, ZOLGYRError& error) const {
    return MayChangeRule(memory, Item(), Row(), error);
}

RecordOf<CompatibilityMatrixRow> StoredRule::Matrix() const {
    FailureTrace trace("StoredRule::Matrix");
    const std::shared_ptr<ConfigurationMemory> memory = Row().matrix != 0 ? Memory() : nullptr;
    ItemContent* content = memory ? memory->Content(Item(), trace) : nullptr;
    return content ? content->Matrix(Row().matrix) : nullptr;
}

ZOLUnicodeString StoredRule::GetOwner() const {
    const auto matrix = Matrix();
    return matrix ? matrix->Row().owner : Row().owner;
}

ZOLUnicodeString StoredRule::GetOrganization() const {
    const auto matrix = Matrix();
    return matrix ? matrix->Row().organization : Row().organization;
}

ZOLUnicodeString StoredRule::GetRuleString() const {
    return RuleText::Translate(Row().text, RuleWords::Neutral(), RuleWords::Catalogue());
}

void StoredRule::NamesChanged(ZOLGYRError& error) {
    const std::shared_ptr<ConfigurationMemory> memory = Memory();
    if (ItemContent* content = memory ? memory->Content(Item(), error) : nullptr)
        content->IndexIsStale();
}

void StoredRule::SetName(const ZOLUnicodeString& name, ZOLGYRError& error) {
    if (IsRuleName(name, error) && SetMember(&ConfigRuleRow::name, name.Bytes(), error))
        NamesChanged(error);
}

void StoredRule::SetRuleString(const ZOLUnicodeString& text, ZOLGYRError& error) {
    const std::string neutral =
        RuleText::Translate(text, RuleWords::Catalogue(), RuleWords::Neutral()).Bytes();
    if (neutral == Row().text || !SetMember(&ConfigRuleRow::text, neutral, error))
        return;
    if (const std::shared_ptr<ConfigurationMemory> memory = Memory())
        SetReferenceRows(*memory, *Record(), error);
    NamesChanged(error);
}

void StoredRule::SetDescription(const ZOLUnicodeString& description, ZOLGYRError& error) {
    SetMember(&ConfigRuleRow::description, description.Bytes(), error);
}

void StoredRule::SetOwner(const ZOLUnicodeString& owner, ZOLGYRError& error) {
    SetMember(&ConfigRuleRow::owner, owner.Bytes(), error);
}

void StoredRule::SetOrganization(const ZOLUnicodeString& organization, ZOLGYRError& error) {
    SetMember(&ConfigRuleRow::organization, organization.Bytes(), error);
}

} // namespace trellis
