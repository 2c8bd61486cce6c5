#pragma once

#include "model/SdaiAppInstance.h"
#include "model/ZOLDMInstance.h"

class ZOLGYRError;

// ZOLGYRSdai: the way between parts and links as instances and as entities.
class TRELLIS_API ZOLGYRSdai {
public:
    // The part or link that an entity is; an empty instance for null, with 20904.
    static void Convert(const SdaiEntityInstance* entity, ZOLDMInstance& instance, ZOLGYRError& error);
    // The entity of the part that holds a link. Null with 20904 for null, for a part, and for a link that is gone.
    static SdaiEntityInstance* GetParentPart(const SdaiEntityInstance* link, ZOLGYRError& error);

    // The same octets as ZOLDMInstance::GetUUId, and the instance of octets.
    static _SEQUENCE_octet GetUuid(const ZOLDMInstance& instance) { return instance.GetUUId(); }
    static ZOLDMInstance GetDMInstance(const _SEQUENCE_octet& identifier) {
        return ZOLDMInstance(identifier, 0, 0, 0);
    }

    // Marks a link under edit; the mark is never stored. "present": 2 added, -1 removed, 3 moved here, 4 put in the
    // place of another. 60241 for a link outside the working model, which gets no mark, and for null.
    static void PutHiddenAttr(SdaiAppInstance* link, const char* name, double value, ZOLGYRError& error);
};
