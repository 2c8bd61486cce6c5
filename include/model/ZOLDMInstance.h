#pragma once

#include "values/ObjID.h"
#include "values/TrellisApi.h"
#include "values/ZOLListVal.h"
#include "values/ZOLUnicodeString.h"
#include "values/_SEQUENCE_octet.h"

#include <cstddef>
#include <functional>
#include <memory>

class ZOLDMInstance;
using ZOLListValZOLDMInstance = ZOLListVal<ZOLDMInstance>;

// ZOLDMInstance: a small value that stands for one part or link of the open database, in whatever way it was named.
// The object is looked up at the first question and kept; copies share it. An instance that names nothing in the
// open database is legal everywhere: its coid is 0 and its texts are what it was made of. Of an object that was
// removed, it answers what that last held, with coid 0.
//
// Equal instances mean the same object, however each was made; instances that name nothing known are equal when they
// were made of the same identifier, or of the same leading string, xcoid and client identifier. Arrays of instances
// are passed as count and pointer, so the class is final. Each query sees memory with its unsaved changes; one that
// fails answers as if nothing were there and writes the reason to the trace.
class TRELLIS_API ZOLDMInstance final {
public:
    // Stands for nothing: identifier of length 0, coid 0, all texts empty.
    ZOLDMInstance();
    ZOLDMInstance(const ZOLDMInstance&);
    ZOLDMInstance(ZOLDMInstance&&) noexcept;
    ZOLDMInstance& operator=(const ZOLDMInstance&);
    ZOLDMInstance& operator=(ZOLDMInstance&&) noexcept;
    ~ZOLDMInstance();
    // The part or link with this identifier. The three numbers are 0.
    ZOLDMInstance(const _SEQUENCE_octet& identifier, int, int, int);
    // By its place in a database, which is told by name and leading string; an empty name is the open database.
    //   context "PART_LIST"  the part of that xcoid
    //   context "$EXT"       the link that the part of that xcoid holds under the client identifier
    ZOLDMInstance(const ZOLUnicodeString& databaseName, const ZOLUnicodeString& leadingString,
                  const ZOLUnicodeString& context, const ZOLUnicodeString& xcoid,
                  const ZOLUnicodeString& clientIdentifier = ZOLUnicodeString());

    // 50 octets for every part and link; none for an instance that names nothing, unless it was made of octets.
    _SEQUENCE_octet GetUUId() const;
    ObjID GetObjID() const;
    // Above 0 for an object that exists, else 0.
    long GetCoid() const;
    // Together with the leading string it identifies a part: digits only, stable over runs. Of a link, the xcoid of
    // the part that holds it, and the client identifier tells it from that part's other links.
    ZOLUnicodeString GetXCoid() const;
    // A short text that tells databases of one name apart: letters and digits.
    ZOLUnicodeString GetLeadingString() const;
    ZOLUnicodeString GetDbname() const;
    ZOLUnicodeString GetClientIdent() const;
    // The display name. Of a part: number, revision and name, joined by `separator`, each if not empty and the name
    // only if it differs from the number; of a link "father / child"; of an instance that names nothing known its
    // xcoid or identifier. The two numbers and the context change nothing.
    ZOLUnicodeString GetNameInstance(const int, const int, const ZOLUnicodeString separator,
                                     const ZOLUnicodeString& context) const;

    // Of a link: the part that holds it; of a part: itself.
    ZOLDMInstance GetPart() const;
    // Of a link: its child part, or an empty instance. The number is 1.
    ZOLDMInstance GetChildPart(int) const;
    // The links one level below a part, in their order; none for entities other than "ZOLASS". Empties the result first;
    // the two numbers are 0 and 1. Links and their child parts are read in one query each.
    void GetChildren(int, const ZOLUnicodeString& entity, ZOLListValZOLDMInstance& result, int) const;
    // The parts one level below a part, each once, in the order of their first link.
    void GetChildParts(ZOLListValZOLDMInstance& result) const;
    // The same for all links below several parts, by one query each for links and parts: for walking level by level.
    static void GetChildrenOfLevel(const ZOLListValZOLDMInstance& parts, ZOLListValZOLDMInstance& links);
    // Of a part, with entity "ZOLASS": the links that use it, limited to assemblies with the identifiers of `names`
    // (empty: all). Of a link, with "ZOLHISLK": the older link that it came from, if that still exists; `names` holds
    // the link's own identifier. Empties the result first.
    void GetFather(int, const ZOLUnicodeString& entity, const ZOLListValZOLUnicodeString& names,
                   ZOLListValZOLDMInstance& result) const;

    // The values of a part's attributes, one for each name, in order; an empty text where there is none.
    // "S_PART_NUMBER", "S_PART_REVISION" and "S_PART_NAME" are attributes of every part.
    void GetAttributes(const ZOLListValZOLUnicodeString& names, ZOLListValZOLUnicodeString& values) const;

    // Whether the current user may use a function on this object: 0 or less when allowed, else the number of the
    // error to report. Privileges do not count here. Product "QRD", component "CFG"; anything else is allowed.
    virtual int GetFunctionRight(const ZOLUnicodeString& product, const ZOLUnicodeString& component,
                                 const ZOLUnicodeString& function, int) const;
    // The site that answers for the part, or for the part that holds the link; may be empty. 0, or 20904 when this
    // names nothing known.
    int GetSiteResponsible(ZOLUnicodeString& site) const;

    // Removes a link with its effectivities' hold on it, pending until ZOLDMWVTA::Commit or RollBack. The numbers are
    // 1. 0 when done; 20904 when this names nothing known, 60200 when it is a part, 60301 when it was removed.
    int Delete(int, int, int, int, int);

    // 1 when events are to be published: a database is open. To be asked before any instance is made.
    static int MustSendPubSubEvent();

    int IsEqual(const ZOLDMInstance& other) const;
    friend bool operator==(const ZOLDMInstance& a, const ZOLDMInstance& b) { return a.IsEqual(b) != 0; }
    std::size_t Hash() const;

private:
    struct State;
    friend class InstanceAccess; // how the model makes instances of objects it has at hand

    std::shared_ptr<State> _state; // null: stands for nothing
};

template <>
struct std::hash<ZOLDMInstance> {
    std::size_t operator()(const ZOLDMInstance& instance) const noexcept { return instance.Hash(); }
};
