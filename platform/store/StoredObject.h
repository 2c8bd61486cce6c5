#pragma once

#include "store/RowDescription.h"
#include "values/ZOLGYRError.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace trellis {

class StoreSession;
class Workspace;

// What a save writes into every row that it changes.
struct SaveStamp {
    std::string user;
    std::int64_t time = 0;
};

// StoredObject: an object of the database as the process knows it. Counted by shared pointers; the workspace
// holds one reference while the object means something, handles hold others, so an object never dies under one.
//
//   New ──save──> Clean <──save── Changed       Removed: asked for, not saved yet; a roll back or a discard
//    │              │ ^─set back──^  │                   brings the object back
//    └──discard─────┴──────unload────┴──> Gone  Gone: removed and saved, unloaded, or its workspace closed
//
// A removed or gone object answers with what it last held; any change of it is refused with 60301 (its name).
class StoredObject : public std::enable_shared_from_this<StoredObject> {
public:
    enum class State { New, Clean, Changed, Removed, Gone };

    virtual ~StoredObject() = default;
    StoredObject(const StoredObject&) = delete;
    StoredObject& operator=(const StoredObject&) = delete;

    virtual RowKind Kind() const = 0;
    virtual ChangeHome Home() const = 0;
    virtual std::int64_t Id() const = 0;
    virtual std::int64_t Version() const = 0;
    virtual std::string DisplayName() const = 0;

    State GetState() const;
    bool IsAlive() const { return !_gone && !_removedBy; }
    // Whether the last save was refused because another user had changed or removed the stored object.
    bool IsStale() const { return _stale; }
    // The same stored object, also when one of the two was unloaded and the other read anew.
    bool IsSame(const StoredObject& other) const { return Kind() == other.Kind() && Id() == other.Id(); }

protected:
    explicit StoredObject(Workspace& workspace) : _workspace(&workspace) {}

    // Whether it may be changed; if not, sets 60301.
    bool MayChange(ZOLGYRError& error) const;
    // To be called after each change of content: keeps the scope's set of unsaved objects right.
    void ContentChanged();
    bool IsNew() const { return Version() == 0; }
    virtual bool ContentDiffers() const = 0;

private:
    friend class Workspace;
    friend class ChangeWriter;

    // Writes of a save. Update and Delete answer false when the row no longer has this object's version.
    virtual void WriteInsert(StoreSession& session, const SaveStamp& stamp) const = 0;
    virtual bool WriteUpdate(StoreSession& session, const SaveStamp& stamp) const = 0;
    virtual bool WriteDelete(StoreSession& session) const = 0;
    virtual bool KeysHold(StoreSession& session) const = 0;
    // The last modifier of the stored row, or nothing when it is gone.
    virtual std::optional<std::string> StoredModifier(StoreSession& session) const = 0;
    // Memory after a save; back to the row as it was read; back to the row as it is stored now, where false tells
    // that there is none.
    virtual void TakeSaved(const SaveStamp& stamp) = 0;
    virtual void Revert() = 0;
    virtual bool Reread(StoreSession& session) = 0;

    Workspace* _workspace; // null once gone
    std::optional<ChangeHome> _removedBy;
    bool _gone = false;
    bool _stale = false;
};

} // namespace trellis
