#pragma once

#include "model/ZOLDMInstance.h"
#include "store/Workspace.h"

// InstanceAccess: makes instances of objects that the model has at hand, without a second look into the database.
class InstanceAccess {
public:
    static ZOLDMInstance Of(const trellis::RecordOf<trellis::PartRow>& part);
    static ZOLDMInstance Of(const trellis::RecordOf<trellis::LinkRow>& link);
    // The part or link that an instance stands for; null for the other kind and for what names nothing alive.
    static trellis::RecordOf<trellis::PartRow> Part(const ZOLDMInstance& instance);
    static trellis::RecordOf<trellis::LinkRow> Link(const ZOLDMInstance& instance);
};
