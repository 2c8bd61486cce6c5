#pragma once

#include "service/ItemContent.h"
#include "service/RuleCache.h"
#include "service/ZOLIQrdCategory.h"
#include "service/ZOLIQrdCompatibilityMatrix.h"
#include "service/ZOLIQrdConfigItem.h"
#include "service/ZOLQRDCfgManager.h"

#include <memory>
#include <string>
#include <unordered_map>

namespace trellis {

// ConfigurationMemory: what the service holds in memory of the open database: which parts are configurable,
// their config items, and the content of those that were asked for. Handles keep a weak hold of it, so that
// one that outlives its database answers and changes nothing.
class ConfigurationMemory : public std::enable_shared_from_this<ConfigurationMemory> {
public:
    // That of the open database; null and a code while none is open or when it cannot be read.
    static std::shared_ptr<ConfigurationMemory> Current(ZOLGYRError& error);
    // The manager over it.
    static ZOLQRDCfgManager* CurrentManager(ZOLGYRError& error);

    explicit ConfigurationMemory(Workspace& workspace) : _workspace(&workspace) {}

    // False once its database was closed: nothing else here may be called then.
    bool IsOpen() const { return _corporate->GetState() != StoredObject::State::Gone; }
    Workspace& Store() { return *_workspace; }

    // Whether FindPart would find the part of this very identifier without asking the store.
    bool HasPartAtHand(const std::string& uuid) const;
    // The record that makes a part configurable, or null when it is not.
    RecordOf<ConfigurablePartRow> FindPart(const std::string& uuid, ZOLGYRError& error);
    void Added(const RecordOf<ConfigurablePartRow>& part);
    // A part's dictionary or own item, living, or null; whether the part is configurable is not asked.
    RecordOf<ConfigItemRow> FindItem(const std::string& uuid, const char* status, ZOLGYRError& error);
    RecordOf<ConfigItemRow> ItemOfId(std::int64_t id, ZOLGYRError& error);
    RecordOf<ConfigItemRow> Corporate() const { return _corporate; }
    void Added(const RecordOf<ConfigItemRow>& item);
    // The site that answers for a part; empty when that is unknown.
    std::string SiteOf(const std::string& uuid);
    // What is in an item; null and a code when it cannot be read.
    ItemContent* Content(const RecordOf<ConfigItemRow>& item, ZOLGYRError& error);
    // Every record of a content but the item, dead ones included, with those that content does not hold.
    std::vector<std::shared_ptr<StoredObject>> RecordsOf(const ItemContent& content);
    // Forgets the content of an item, with its unsaved changes.
    void Unload(const RecordOf<ConfigItemRow>& item);

    // The rule sets that were compiled last.
    RuleCache& KnownRules() { return _rules; }

    // Changes of records go through here, each between Begin and End, so that what others did to the store in
    // between is noticed, and what the service did itself costs nothing.
    void Begin();
    void End() { _known = _workspace->ChangeCount(); }

    // Handles over records; null for null.
    ZOLIQrdConfigItem_var Handle(const RecordOf<ConfigItemRow>& item);
    ZOLIQrdCategory_var Handle(const RecordOf<CategoryRow>& category, const RecordOf<ConfigItemRow>& item);
    ZOLIQrdEffectivity_var Handle(const RecordOf<EffectivityRow>& effectivity,
                                  const RecordOf<ConfigItemRow>& item);
    ZOLIQrdConfigRule_var Handle(const RecordOf<ConfigRuleRow>& rule, const RecordOf<ConfigItemRow>& item);
    ZOLIQrdCompatibilityMatrix_var Handle(const RecordOf<CompatibilityMatrixRow>& matrix,
                                          const RecordOf<ConfigItemRow>& item);

private:
    void ReadAllParts();

    Workspace* _workspace;
    RecordOf<ConfigItemRow> _corporate; // gone when the database is closed
    std::unordered_map<std::string, RecordOf<ConfigurablePartRow>> _parts;
    std::unordered_map<std::string, RecordOf<ConfigItemRow>> _items; // by status letter and uuid
    std::unordered_map<std::int64_t, std::unique_ptr<ItemContent>> _contents;
    RuleCache _rules;
    std::unordered_map<std::string, std::string> _sites; // by uuid of the part
    std::int64_t _known = 0;                             // ChangeCount after the service's own last change
    int _partMisses = 0;
};

} // namespace trellis
