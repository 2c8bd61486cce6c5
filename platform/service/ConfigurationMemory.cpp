#include "service/ConfigurationMemory.h"

#include "model/ZOLDMInstance.h"
#include "service/StoredCategory.h"
#include "service/StoredConfigItem.h"
#include "service/StoredEffectivity.h"
#include "service/StoredMatrix.h"
#include "service/StoredRule.h"
#include "values/FailureTrace.h"

namespace trellis {

namespace {

constexpr int NoDatabase = 60201;
// After so many parts were asked for one by one, all that are configurable are read at once: whoever lists a
// structure asks for many.
constexpr int MissesBeforeReadingAll = 8;

std::shared_ptr<ConfigurationMemory> CurrentMemory;
std::unique_ptr<ZOLQRDCfgManager> CurrentOverMemory;

// The memory a closed database left behind must not outlive its workspace unseen.
bool BelongsToOpenDatabase(const std::shared_ptr<ConfigurationMemory>& memory) {
    return memory && memory->IsOpen() && &memory->Store() == Workspace::Current();
}

} // namespace

std::shared_ptr<ConfigurationMemory> ConfigurationMemory::Current(ZOLGYRError& error) {
    if (BelongsToOpenDatabase(CurrentMemory)) {
        CurrentMemory->Begin();
        return CurrentMemory;
    }
    CurrentOverMemory.reset();
    CurrentMemory.reset();
    if (!Workspace::Current()) {
        error.Set(NoDatabase);
        return nullptr;
    }
    auto memory = std::make_shared<ConfigurationMemory>(*Workspace::Current());
    ZOLGYRError reading;
    memory->_corporate = memory->Store().Get<ConfigItemRow>(ConfigItemRow::CorporateId, reading);
    if (!memory->_corporate) {
        if (reading.GetCode() != 0)
            error = reading;
        else
            StoreFailure(20904, {"corporate dictionary"}).Into(error);
        return nullptr;
    }
    memory->Begin();
    CurrentMemory = memory;
    return memory;
}

ZOLQRDCfgManager* ConfigurationMemory::CurrentManager(ZOLGYRError& error) {
    const std::shared_ptr<ConfigurationMemory> memory = Current(error);
    if (!memory)
        return nullptr;
    if (!CurrentOverMemory)
        CurrentOverMemory.reset(new ZOLQRDCfgManager(memory));
    return CurrentOverMemory.get();
}

void ConfigurationMemory::Begin() {
    if (_known == _workspace->ChangeCount())
        return;
    for (auto& [id, content] : _contents)
        if (content)
            content->IndexIsStale();
    _sites.clear();
    End();
}

void ConfigurationMemory::ReadAllParts() {
    FailureTrace trace("ConfigurationMemory::ReadAllParts"); // the one that is asked for is asked again
    for (const auto& part : _workspace->Find(StoreQuery<ConfigurablePartRow>(), trace))
        _parts.insert_or_assign(part->Row().partUuid, part);
    End();
}

bool ConfigurationMemory::HasPartAtHand(const std::string& uuid) const {
    const auto found = _parts.find(uuid);
    return found != _parts.end() && found->second->IsAlive();
}

RecordOf<ConfigurablePartRow> ConfigurationMemory::FindPart(const std::string& uuid, ZOLGYRError& error) {
    auto found = _parts.find(uuid);
    if (found == _parts.end() && ++_partMisses == MissesBeforeReadingAll) {
        ReadAllParts();
        found = _parts.find(uuid);
    }
    if (found != _parts.end() && found->second->IsAlive())
        return found->second;
    auto part = _workspace->FindFirst(
        StoreQuery<ConfigurablePartRow>().Where(&ConfigurablePartRow::partUuid, uuid), error);
    if (part)
        _parts.insert_or_assign(uuid, part);
    End();
    return part;
}

void ConfigurationMemory::Added(const RecordOf<ConfigurablePartRow>& part) {
    _parts.insert_or_assign(part->Row().partUuid, part);
}

RecordOf<ConfigItemRow> ConfigurationMemory::FindItem(const std::string& uuid, const char* status,
                                                      ZOLGYRError& error) {
    const std::string key = status + uuid;
    const auto found = _items.find(key);
    if (found != _items.end() && found->second->IsAlive())
        return found->second;
    auto item = _workspace->FindFirst(StoreQuery<ConfigItemRow>()
                                          .Where(&ConfigItemRow::designUuid, uuid)
                                          .Where(&ConfigItemRow::status, status),
                                      error);
    if (item)
        _items.insert_or_assign(key, item);
    End();
    return item;
}

RecordOf<ConfigItemRow> ConfigurationMemory::ItemOfId(std::int64_t id, ZOLGYRError& error) {
    auto item = _workspace->Get<ConfigItemRow>(id, error);
    End();
    return item;
}

void ConfigurationMemory::Added(const RecordOf<ConfigItemRow>& item) {
    _items.insert_or_assign(item->Row().status + item->Row().designUuid, item);
}

std::string ConfigurationMemory::SiteOf(const std::string& uuid) {
    const auto found = _sites.find(uuid);
    if (found != _sites.end())
        return found->second;
    ZOLUnicodeString site;
    ZOLDMInstance(_SEQUENCE_octet(uuid), 0, 0, 0).GetSiteResponsible(site);
    End();
    return _sites.emplace(uuid, site.Bytes()).first->second;
}

ItemContent* ConfigurationMemory::Content(const RecordOf<ConfigItemRow>& item, ZOLGYRError& error) {
    std::unique_ptr<ItemContent>& content = _contents[item->Id()];
    if (!content)
        content = ItemContent::Read(*_workspace, item, error);
    End();
    return content.get();
}

// What rules name is only written and searched, and so is in memory only while it is unsaved.
std::vector<std::shared_ptr<StoredObject>> ConfigurationMemory::RecordsOf(const ItemContent& content) {
    std::vector<std::shared_ptr<StoredObject>> records = content.AllRecords();
    for (const auto& object : _workspace->Unsaved()) {
        const auto* reference = dynamic_cast<const StoredRecord<RuleReferenceRow>*>(object.get());
        if (reference && reference->Row().configItem == content.Item()->Id())
            records.push_back(object);
    }
    return records;
}

void ConfigurationMemory::Unload(const RecordOf<ConfigItemRow>& item) {
    FailureTrace trace("ConfigurationMemory::Unload"); // what cannot be read is not in memory either
    if (ItemContent* content = Content(item, trace))
        for (const auto& record : RecordsOf(*content))
            _workspace->Unload(*record);
    _contents.erase(item->Id());
    if (item->GetState() != StoredObject::State::Clean)
        _workspace->DiscardUnsaved(*item, trace);
    End();
}

ZOLIQrdConfigItem_var ConfigurationMemory::Handle(const RecordOf<ConfigItemRow>& item) {
    return item ? new StoredConfigItem(weak_from_this(), item) : nullptr;
}

ZOLIQrdCategory_var ConfigurationMemory::Handle(const RecordOf<CategoryRow>& category,
                                                const RecordOf<ConfigItemRow>& item) {
    return category ? new StoredCategory(weak_from_this(), category, item) : nullptr;
}

ZOLIQrdEffectivity_var ConfigurationMemory::Handle(const RecordOf<EffectivityRow>& effectivity,
                                                   const RecordOf<ConfigItemRow>& item) {
    return effectivity ? new StoredEffectivity(weak_from_this(), effectivity, item) : nullptr;
}

ZOLIQrdConfigRule_var ConfigurationMemory::Handle(const RecordOf<ConfigRuleRow>& rule,
                                                  const RecordOf<ConfigItemRow>& item) {
    return rule ? new StoredRule(weak_from_this(), rule, item) : nullptr;
}

ZOLIQrdCompatibilityMatrix_var ConfigurationMemory::Handle(const RecordOf<CompatibilityMatrixRow>& matrix,
                                                           const RecordOf<ConfigItemRow>& item) {
    return matrix ? new StoredMatrix(weak_from_this(), matrix, item) : nullptr;
}

} // namespace trellis
