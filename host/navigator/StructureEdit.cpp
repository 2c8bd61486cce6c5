#include "navigator/StructureEdit.h"

#include "model/DatabaseSession.h"
#include "model/LinksUnderEdit.h"
#include "model/ZOLGYRSdai.h"
#include "site/ZOLIQrdSCManager.h"
#include "values/ZOLGYRError.h"

namespace trellis {

namespace {

constexpr int PartIsGone = 20904;
constexpr int UserIsUnknown = 60501;
constexpr int LinkIsRemoved = 60612;
constexpr int NameCannotBeUsed = 60613;
constexpr int LongestName = 255;

// Values of the hidden attribute "present".
constexpr double Added = 2;
constexpr double Removed = -1;
constexpr double Moved = 3;
constexpr double Replaced = 4;

// The stored link that a link was before any edit; null for one that was added.
SdaiAppInstance* OriginOf(SdaiAppInstance& link) {
    return link.IsNew() ? link.GetOlder() : &link;
}

} // namespace

// A closed database has ended the links already.
StructureEdit::~StructureEdit() {
    if (DatabaseSession::IsOpen())
        TakeBackAll();
}

bool StructureEdit::MayEdit(const SdaiAppInstance* link, ZOLGYRError& error) {
    ZOLGYRError login;
    if (!GetSecurityManager()->CheckLogin(login) && login.GetCode() == UserIsUnknown) {
        error = login;
        return false;
    }
    if (!link || !link->IsRemoved())
        return true;
    error.Set(LinkIsRemoved, 0, {link->GetChild().GetNameInstance(1, 1, " ", "$BOM_NAVIG")});
    return false;
}

bool StructureEdit::Fits(const Place& place, ZOLGYRError& error) {
    if (place.parent.GetCoid() == 0 || place.child.GetCoid() == 0) {
        error.Set(PartIsGone);
        return false;
    }
    return !LinksUnderEdit::ClosesCircle(place.parent, place.child, error);
}

int StructureEdit::PositionOf(const SdaiAppInstance& link) const {
    for (int position = 1; position <= _record.GetNbModifications(); ++position)
        if (_record.GetFirst(position) == &link || _record.GetSecond(position) == &link)
            return position;
    return 0;
}

void StructureEdit::TakeBack(const SdaiAppInstance& link) {
    const int position = PositionOf(link);
    if (position == 0)
        return;
    LinksUnderEdit::PutBack(*_record.GetFirst(position));
    if (SdaiAppInstance* old = _record.GetSecond(position))
        LinksUnderEdit::PutBack(*old);
    _record.Remove(position);
}

void StructureEdit::Mark(SdaiAppInstance& link, double present) {
    LinksUnderEdit::TakeUp(link);
    ZOLGYRError none; // it stands in the working model
    ZOLGYRSdai::PutHiddenAttr(&link, "present", present, none);
}

void StructureEdit::Append(ModificationType kind, SdaiAppInstance* first, SdaiAppInstance* second) {
    _record.Append(kind, first, second, ++_count, {});
}

// `origin` is the stored link that is to come to the place, or null for one that is added.
SdaiAppInstance* StructureEdit::RecordPlace(SdaiAppInstance* origin, const Place& place) {
    if (origin && origin->GetParent() == place.parent && origin->GetChild() == place.child) {
        if (origin->GetStoredName() == place.name)
            return origin;
        LinksUnderEdit::TakeUp(*origin);
        LinksUnderEdit::SetName(*origin, place.name);
        Append(RenameLink, origin, nullptr);
        return origin;
    }
    const bool isReplaced = origin && !(origin->GetChild() == place.child);
    SdaiAppInstance* link = LinksUnderEdit::Make(place.parent, place.child, place.name, origin);
    if (!origin) {
        Mark(*link, Added);
        Append(AddLink, link, nullptr);
        return link;
    }
    Mark(*link, isReplaced ? Replaced : Moved);
    Mark(*origin, Removed);
    Append(isReplaced ? ReplaceLink : MoveLink, link, origin);
    return link;
}

SdaiAppInstance* StructureEdit::Bring(SdaiAppInstance& link, const Place& place) {
    SdaiAppInstance* origin = OriginOf(link);
    TakeBack(link);
    return RecordPlace(origin, place);
}

SdaiAppInstance* StructureEdit::Add(const ZOLDMInstance& parent, const ZOLDMInstance& part,
                                    ZOLGYRError& error) {
    const Place place{parent, part, {}};
    return MayEdit(nullptr, error) && Fits(place, error) ? RecordPlace(nullptr, place) : nullptr;
}

SdaiAppInstance* StructureEdit::Move(SdaiAppInstance& link, const ZOLDMInstance& parent, ZOLGYRError& error) {
    const Place place{parent, link.GetChild(), link.GetName()};
    if (!MayEdit(&link, error) || !Fits(place, error))
        return nullptr;
    return parent == link.GetParent() ? &link : Bring(link, place);
}

SdaiAppInstance* StructureEdit::Replace(SdaiAppInstance& link, const ZOLDMInstance& part,
                                        ZOLGYRError& error) {
    const Place place{link.GetParent(), part, link.GetName()};
    if (!MayEdit(&link, error) || !Fits(place, error))
        return nullptr;
    return part == link.GetChild() ? &link : Bring(link, place);
}

SdaiAppInstance* StructureEdit::Rename(SdaiAppInstance& link, const ZOLUnicodeString& name,
                                       ZOLGYRError& error) {
    if (!MayEdit(&link, error))
        return nullptr;
    if (name.GetLengthInChar() > LongestName || name.SearchSubString("\n", 0) >= 0) {
        error.Set(NameCannotBeUsed, 0, {name});
        return nullptr;
    }
    if (link.IsNew()) {
        LinksUnderEdit::SetName(link, name);
        return &link;
    }
    return Bring(link, {link.GetParent(), link.GetChild(), name});
}

bool StructureEdit::Remove(SdaiAppInstance& link, ZOLGYRError& error) {
    if (!MayEdit(&link, error))
        return false;
    SdaiAppInstance* origin = OriginOf(link);
    TakeBack(link);
    if (!origin)
        return true;
    Mark(*origin, Removed);
    Append(RemoveLink, origin, nullptr);
    return true;
}

} // namespace trellis
