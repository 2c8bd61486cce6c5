#pragma once

#include "service/ConfigurationMemory.h"

namespace trellis {

// PartConfiguration: which parts are configurable, and with what.
class PartConfiguration {
public:
    explicit PartConfiguration(ConfigurationMemory& memory) : _memory(memory) {}

    // The record of a configurable part. Null with 20265 for a part that is not configurable, with 20904
    // (identifier) when no part has the identifier.
    RecordOf<ConfigurablePartRow> Find(const std::string& uuid, ZOLGYRError& error);
    // Null without a code when the part is not configurable or has no such item.
    RecordOf<ConfigItemRow> FindItem(const std::string& uuid, const char* status);

    void Set(const std::string& uuid, ZOLGYRError& error);
    void Unset(const std::string& uuid, ZOLGYRError& error);
    void SetTypeMask(const std::string& uuid, long mask, ZOLGYRError& error);
    void AddDictionary(const std::string& uuid, ZOLGYRError& error);
    void DeleteDictionary(const std::string& uuid, ZOLGYRError& error);

private:
    bool Permits(const char* function, const std::string& uuid, ZOLGYRError& error);
    void AddItem(const std::string& uuid, const char* status, ZOLGYRError& error);

    ConfigurationMemory& _memory;
};

} // namespace trellis
