#pragma once

#include "service/ZOLQRDCfgModification.h"

class ZOLGYRError;

namespace trellis {

// StructureEdit: what a user does to links, as pending changes: made in the working model of links under edit and
// recorded for the commit. A link has one record at most, which tells its way from what is stored to what it is to
// be: edits of an edited link replace its record, and one that comes back to what is stored has none.
//
// An edit that is refused changes nothing: 60240 (the parts) when a part would come to contain itself, 60501 (user)
// for somebody who may change nothing, 60612 (part) for a link that is to be removed, 60613 for a name that cannot be
// used, 20904 for a part that is gone. Those that give a link give the one that stands for it now.
class StructureEdit {
public:
    StructureEdit() = default;
    ~StructureEdit();
    StructureEdit(const StructureEdit&) = delete;
    StructureEdit& operator=(const StructureEdit&) = delete;

    SdaiAppInstance* Add(const ZOLDMInstance& parent, const ZOLDMInstance& part, ZOLGYRError& error);
    // Below another part; the link keeps its name.
    SdaiAppInstance* Move(SdaiAppInstance& link, const ZOLDMInstance& parent, ZOLGYRError& error);
    // Puts another part under the link.
    SdaiAppInstance* Replace(SdaiAppInstance& link, const ZOLDMInstance& part, ZOLGYRError& error);
    SdaiAppInstance* Rename(SdaiAppInstance& link, const ZOLUnicodeString& name, ZOLGYRError& error);
    // True when done. A link that was added is simply gone again.
    bool Remove(SdaiAppInstance& link, ZOLGYRError& error);

    // The position of the record that a link is in, as the new or the old one; 0 for a link that is not edited.
    int PositionOf(const SdaiAppInstance& link) const;
    // Undoes the record that the link is in, if any.
    void TakeBack(const SdaiAppInstance& link);
    void TakeBackAll() { _record.RollBack(0); }
    const ZOLQRDCfgModification& Record() const { return _record; }

private:
    struct Place {
        ZOLDMInstance parent;
        ZOLDMInstance child;
        ZOLUnicodeString name;
    };

    static bool MayEdit(const SdaiAppInstance* link, ZOLGYRError& error);
    static bool Fits(const Place& place, ZOLGYRError& error);
    // Brings a link to a place, whatever was edited of it before.
    SdaiAppInstance* Bring(SdaiAppInstance& link, const Place& place);
    SdaiAppInstance* RecordPlace(SdaiAppInstance* origin, const Place& place);
    void Mark(SdaiAppInstance& link, double present);
    void Append(ModificationType kind, SdaiAppInstance* first, SdaiAppInstance* second);

    ZOLQRDCfgModification _record;
    int _count = 0;
};

} // namespace trellis
