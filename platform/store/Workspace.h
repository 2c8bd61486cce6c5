#pragma once

#include "store/ChangeScope.h"
#include "store/ConfigurationRows.h"
#include "store/IdentityMap.h"
#include "store/ModelRows.h"
#include "store/RuleRows.h"
#include "store/SiteRows.h"
#include "store/StoreFailure.h"
#include "store/StoreQuery.h"
#include "store/StoreSession.h"
#include "store/StoredRecord.h"

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace trellis {

// Workspace: an open database as the process sees it. It owns the session, the identity map, and two sets of
// unsaved changes over that map: those of the service and those made directly on the model. Nobody else opens
// a transaction. Queries answer from memory over store: the rows found by SQL, minus those changed or removed
// in memory, plus those in memory that match.
//
// Operations with a carrier set the numbers of StoreFailure, and only when no number stands; they never
// throw.
class Workspace {
public:
    // Who is working: asked each time a name is written, as last modifier by saves, as publisher of events.
    using UserSource = std::function<std::string()>;

    Workspace(std::unique_ptr<StoreSession> session, UserSource user);
    // For one that is used by the same user all along.
    Workspace(std::unique_ptr<StoreSession> session, const std::string& user)
        : Workspace(std::move(session), [user] { return user; }) {}
    // All objects become gone; unsaved changes are lost.
    ~Workspace();
    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;

    // The workspace of the process, or null while no database is open. Replacing it closes the one before.
    static Workspace* Current();
    static void MakeCurrent(std::unique_ptr<Workspace> workspace);

    StoreSession& Session() { return *_session; }
    std::string User() const { return _user(); }
    // Grows whenever anything that an object or query answers may have changed in this process, and never
    // repeats, also from one database to the next: for caches above. Never 0.
    std::int64_t ChangeCount() const { return _changeCount; }

    // A new object with this content; id, version and stamp are set here. It is unsaved, in the scope of its
    // kind.
    template <class Row>
    RecordOf<Row> Create(Row row);
    // The object of that id, or null when there is none or it was removed; on a failure null and a code.
    template <class Row>
    RecordOf<Row> Get(std::int64_t id, ZOLGYRError& error);
    // The objects of these ids, in their order, null where Get gives null; those not known yet by one query.
    template <class Row>
    std::vector<RecordOf<Row>> GetAll(const std::vector<std::int64_t>& ids, ZOLGYRError& error);
    // All objects that the query lets through, in order of creation; on a failure none and a code.
    template <class Row>
    std::vector<RecordOf<Row>> Find(const StoreQuery<Row>& query, ZOLGYRError& error);
    // The first of Find, or null.
    template <class Row>
    RecordOf<Row> FindFirst(const StoreQuery<Row>& query, ZOLGYRError& error);

    // Marks as removed, to be deleted by the next save of the scope: that of its kind, or the given one. A
    // new object is simply forgotten when the scope is its own. Removing twice does nothing; a gone object
    // sets 60301.
    void Remove(StoredObject& object, ZOLGYRError& error);
    void Remove(StoredObject& object, ChangeHome by, ZOLGYRError& error);

    // Forgets an object and its unsaved changes; the next access reads a new one, equal to it.
    void Unload(StoredObject& object);
    // Brings an object, or all, back to what is stored. A new object, and one that another user removed, is
    // gone.
    void DiscardUnsaved(StoredObject& object, ZOLGYRError& error);
    void DiscardUnsaved(ZOLGYRError& error);

    // Unsaved objects of both scopes, in the order of kinds, each once.
    std::vector<std::shared_ptr<StoredObject>> Unsaved() const;
    bool HasUnsaved() const { return !_service.IsEmpty() || !_model.IsEmpty(); }

    // Writes the unsaved changes of the service in one transaction: deletes, then inserts, then updates;
    // unique keys are judged at the end. Success bumps versions, stores the queued events and delivers them.
    // A failure writes nothing and changes nothing in memory but the stale marks; it sets 20902 (first stale
    // object, other user), 20904 (first object that is gone), 20903 or 20901. True when done.
    bool Save(ZOLGYRError& error);
    // The same for both scopes in one transaction.
    bool Commit(ZOLGYRError& error);
    // Drops the changes made directly on the model; those of the service stay.
    void RollBack();

    // Queues an event; it is stored and delivered with the next save that succeeds.
    void QueueEvent(std::string instanceUuid, int number);
    using EventListener = std::function<void(const EventRow&)>;
    int AddEventListener(EventListener listener);
    void RemoveEventListener(int listener);

    // Runs a work that writes rows past the objects, in one transaction; then refreshes all clean objects of
    // the model. An exception StoreFailure of the work, or its answer false, writes nothing. True when done.
    bool RunBulk(const std::function<bool(StoreSession&)>& work, ZOLGYRError& error);

private:
    friend class StoredObject;

    template <class Row>
    RecordOf<Row> Adopt(const Row& row);
    ChangeScope& Scope(ChangeHome home) { return home == ChangeHome::Service ? _service : _model; }
    void ContentChanged(StoredObject& object);
    void Forget(StoredObject& object);
    bool Write(bool withModel, ZOLGYRError& error);
    void Deliver(const std::vector<EventRow>& events);

    std::unique_ptr<StoreSession> _session;
    UserSource _user;
    IdentityMap _objects;
    ChangeScope _service;
    ChangeScope _model;
    std::vector<EventRow> _events;
    std::map<int, EventListener> _listeners;
    int _lastListener = 0;
    static inline std::int64_t _changeCount = 1;
};

template <class Row>
RecordOf<Row> Workspace::Create(Row row) {
    row.id = _session->NewRowId();
    row.version = 0;
    row.lastModifier.clear();
    row.lastUpdate = 0;
    auto record = std::make_shared<StoredRecord<Row>>(*this, std::move(row));
    _objects.Add(record);
    Scope(RowDescription<Row>::home).Add(record);
    ++_changeCount;
    return record;
}

// The object of a row just read. A clean object that is older than the row takes it over.
template <class Row>
RecordOf<Row> Workspace::Adopt(const Row& row) {
    auto known =
        std::static_pointer_cast<StoredRecord<Row>>(_objects.Find(RowDescription<Row>::kind, row.id));
    if (!known) {
        known = std::make_shared<StoredRecord<Row>>(*this, row);
        _objects.Add(known);
    } else if (known->GetState() == StoredObject::State::Clean && known->Version() != row.version) {
        known->Refresh(row);
        ++_changeCount;
    }
    return known;
}

template <class Row>
RecordOf<Row> Workspace::Get(std::int64_t id, ZOLGYRError& error) {
    auto known = std::static_pointer_cast<StoredRecord<Row>>(_objects.Find(RowDescription<Row>::kind, id));
    if (known)
        return known->IsAlive() ? known : nullptr;
    return FindFirst(StoreQuery<Row>().Where(static_cast<std::int64_t Row::*>(&RowHead::id), id), error);
}

template <class Row>
std::vector<RecordOf<Row>> Workspace::GetAll(const std::vector<std::int64_t>& ids, ZOLGYRError& error) {
    constexpr RowKind kind = RowDescription<Row>::kind;
    std::vector<std::int64_t> unknown;
    for (const std::int64_t id : ids)
        if (!_objects.Find(kind, id))
            unknown.push_back(id);
    Find(StoreQuery<Row>().WhereIn(static_cast<std::int64_t Row::*>(&RowHead::id), std::move(unknown)),
         error);
    std::vector<RecordOf<Row>> records;
    records.reserve(ids.size());
    for (const std::int64_t id : ids) {
        auto known = std::static_pointer_cast<StoredRecord<Row>>(_objects.Find(kind, id));
        records.push_back(known && known->IsAlive() ? std::move(known) : nullptr);
    }
    return records;
}

template <class Row>
std::vector<RecordOf<Row>> Workspace::Find(const StoreQuery<Row>& query, ZOLGYRError& error) {
    std::vector<RecordOf<Row>> found;
    try {
        _session->Table<Row>().Select(query, [&](const Row& row) {
            RecordOf<Row> record = Adopt(row);
            if (record->GetState() == StoredObject::State::Clean)
                found.push_back(std::move(record));
        });
    } catch (const StoreFailure& failure) {
        failure.Into(error);
        return {};
    }
    Scope(RowDescription<Row>::home).ForEachOf(RowDescription<Row>::kind, [&](StoredObject& object) {
        auto& record = static_cast<StoredRecord<Row>&>(object);
        if (record.IsAlive() && query.Matches(record.Row()))
            found.push_back(std::static_pointer_cast<StoredRecord<Row>>(record.shared_from_this()));
    });
    std::sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a->Id() < b->Id(); });
    return found;
}

template <class Row>
RecordOf<Row> Workspace::FindFirst(const StoreQuery<Row>& query, ZOLGYRError& error) {
    std::vector<RecordOf<Row>> found = Find(query, error);
    return found.empty() ? nullptr : std::move(found.front());
}

} // namespace trellis
