#pragma once

#include "model/ZOLDMInstance.h"
#include "store/Workspace.h"

#include <string>

// What an instance was made of, and the object behind it once that was looked up. Shared by all copies.
struct ZOLDMInstance::State {
    std::string database;
    std::string leading;
    std::string context; // "PART_LIST", "$EXT", or empty for an identifier
    std::string xcoid;
    std::string client;
    std::string identifier; // given, or that of the object found

    trellis::RecordOf<trellis::PartRow> part; // at most one of the two is set
    trellis::RecordOf<trellis::LinkRow> link;
    std::int64_t lookedAt = 0; // change count of the last look that found nothing alive

    static constexpr const char* PartContext = "PART_LIST";
    static constexpr const char* LinkContext = "$EXT";

    bool IsAlive() const { return (part && part->IsAlive()) || (link && link->IsAlive()); }
    // Looks the object up, unless it is at hand, or nothing has changed since the last look in vain. What was found
    // before and is gone now stays, so that it can answer what it last held.
    void Resolve();
    // Takes an object over, with all names of it.
    void Take(const trellis::RecordOf<trellis::PartRow>& found);
    void Take(const trellis::RecordOf<trellis::LinkRow>& found);
    // What equal instances have in common.
    std::string Key();

private:
    void LookUp(trellis::Workspace& workspace, ZOLGYRError& error);
    void LookUpPlace(trellis::Workspace& workspace, ZOLGYRError& error);
};
