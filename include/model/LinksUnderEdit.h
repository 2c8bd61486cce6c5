#pragma once

#include "model/SdaiAppInstance.h"

class ZOLGYRError;

namespace trellis {

// LinksUnderEdit: the working model of the open database: the structure as stored, and over it the links that edits
// make, take away and rename. It writes nothing; nothing else of the process sees it. It empties when the database is
// closed or another opened, and its objects end then.
class TRELLIS_API LinksUnderEdit {
public:
    using Links = std::vector<SdaiAppInstance*>;

    // The one object of a part; null for what is no part of the open database.
    static SdaiEntityInstance* Part(const ZOLDMInstance& part);
    // The one object of a link; null for what is neither a link of the open database nor one made here.
    static SdaiAppInstance* Link(const ZOLDMInstance& link);

    // The links below parts, one list for each part: the stored ones in their order, those taken away too, each
    // followed by the one that takes its place there; behind them the other new ones in the order in which they were
    // made. All parts are read at once.
    static std::vector<Links> Below(const std::vector<ZOLDMInstance>& parts);
    // Whether anything stands below each part, without reading it. A part whose stored links are all removed in
    // memory may still answer true.
    static std::vector<bool> HaveLinks(const std::vector<ZOLDMInstance>& parts);
    // Sets 60240 (the parts from the child down to the parent) when the child is the parent or holds it at some
    // level, as the edits leave the structure, so that a link from the parent to it would close a circle.
    static bool ClosesCircle(const ZOLDMInstance& parent, const ZOLDMInstance& child, ZOLGYRError& error);

    // A new link; it has an identifier of its own. `older` is the link whose place it takes, or null.
    static SdaiAppInstance* Make(const ZOLDMInstance& parent, const ZOLDMInstance& child,
                                 const ZOLUnicodeString& name, SdaiAppInstance* older);
    // Brings a stored link into the working model, where it may be marked and renamed.
    static void TakeUp(SdaiAppInstance& link);
    // The name of a link under edit.
    static void SetName(SdaiAppInstance& link, const ZOLUnicodeString& name);
    // Takes a link out of the working model, with its marks and its name. A new one stands nowhere then.
    static void PutBack(SdaiAppInstance& link);
    // Ends all objects.
    static void Forget();
};

} // namespace trellis
