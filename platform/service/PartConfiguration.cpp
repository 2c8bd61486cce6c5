#include "service/PartConfiguration.h"

#include "model/ZOLDMInstance.h"
#include "service/ItemEditor.h"
#include "site/RightTable.h"
#include "values/FailureTrace.h"

namespace trellis {

namespace {

constexpr int NotConfigurable = 20265;
constexpr int NoSuchObject = 20904;

void SetMissing(const std::string& name, ZOLGYRError& error) {
    error.Set(NoSuchObject, {ZOLUnicodeString(name)});
}

// Whether a part has the identifier; a link has one, too.
bool IsPart(const std::string& uuid) {
    const ZOLDMInstance instance(_SEQUENCE_octet(uuid), 0, 0, 0);
    return instance.GetCoid() > 0 && instance.GetPart() == instance;
}

} // namespace

RecordOf<ConfigurablePartRow> PartConfiguration::Find(const std::string& uuid, ZOLGYRError& error) {
    ZOLGYRError reading;
    auto part = _memory.FindPart(uuid, reading);
    if (part)
        return part;
    if (reading.GetCode() != 0)
        error = reading;
    else if (!IsPart(uuid))
        SetMissing(uuid, error);
    else
        error.Set(NotConfigurable);
    return nullptr;
}

RecordOf<ConfigItemRow> PartConfiguration::FindItem(const std::string& uuid, const char* status) {
    FailureTrace trace("PartConfiguration::FindItem");
    return _memory.FindPart(uuid, trace) ? _memory.FindItem(uuid, status, trace) : nullptr;
}

bool PartConfiguration::Permits(const char* function, const std::string& uuid, ZOLGYRError& error) {
    return RightTable::Permits(function, _memory.SiteOf(uuid), error);
}

void PartConfiguration::AddItem(const std::string& uuid, const char* status, ZOLGYRError& error) {
    ZOLGYRError reading;
    if (_memory.FindItem(uuid, status, reading))
        return;
    if (reading.GetCode() != 0) {
        error = reading;
        return;
    }
    ConfigItemRow item;
    item.designUuid = uuid;
    item.status = status;
    _memory.Added(_memory.Store().Create(std::move(item)));
    _memory.End();
}

void PartConfiguration::Set(const std::string& uuid, ZOLGYRError& error) {
    ZOLGYRError finding;
    if (Find(uuid, finding))
        return;
    if (finding.GetCode() != NotConfigurable) {
        error = finding;
        return;
    }
    ZOLGYRError adding;
    if (!Permits("Set", uuid, error))
        return;
    AddItem(uuid, ConfigItemRow::OwnItem, adding);
    if (adding.GetCode() != 0) {
        error = adding;
        return;
    }
    ConfigurablePartRow part;
    part.partUuid = uuid;
    _memory.Added(_memory.Store().Create(std::move(part)));
    _memory.End();
}

void PartConfiguration::Unset(const std::string& uuid, ZOLGYRError& error) {
    const auto part = Find(uuid, error);
    if (!part || !Permits("Unset", uuid, error))
        return;
    ZOLGYRError removing;
    if (const auto item = _memory.FindItem(uuid, ConfigItemRow::OwnItem, removing))
        if (ItemContent* content = _memory.Content(item, removing))
            RemoveItemRows(_memory, *content, removing);
    if (removing.GetCode() == 0)
        _memory.Store().Remove(*part, removing);
    if (removing.GetCode() != 0)
        error = removing;
    _memory.End();
}

void PartConfiguration::SetTypeMask(const std::string& uuid, long mask, ZOLGYRError& error) {
    const auto part = Find(uuid, error);
    if (!part || part->Row().typeMask == mask || !Permits("Set", uuid, error))
        return;
    part->Change(&ConfigurablePartRow::typeMask, mask, error);
    _memory.End();
}

void PartConfiguration::AddDictionary(const std::string& uuid, ZOLGYRError& error) {
    if (Find(uuid, error))
        AddItem(uuid, ConfigItemRow::Dictionary, error);
}

void PartConfiguration::DeleteDictionary(const std::string& uuid, ZOLGYRError& error) {
    if (!Find(uuid, error))
        return;
    ZOLGYRError reading;
    const auto dictionary = _memory.FindItem(uuid, ConfigItemRow::Dictionary, reading);
    ItemContent* content = dictionary ? _memory.Content(dictionary, reading) : nullptr;
    if (reading.GetCode() != 0)
        error = reading;
    else if (!content)
        SetMissing(uuid, error);
    else if (Permits("DeleteOptionDictionary", uuid, error))
        RemoveItemRows(_memory, *content, error);
}

} // namespace trellis
