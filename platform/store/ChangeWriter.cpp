#include "store/ChangeWriter.h"

#include "store/RowTable.h"
#include "store/SiteRows.h"

#include <algorithm>

namespace trellis {

ChangeWriter::ChangeWriter(std::vector<std::shared_ptr<StoredObject>> objects, SaveStamp stamp,
                           bool withModel)
    : _objects(std::move(objects)), _stamp(std::move(stamp)) {
    for (const std::shared_ptr<StoredObject>& object : _objects) {
        const bool removed = object->_removedBy && (withModel || *object->_removedBy == ChangeHome::Service);
        if (removed) {
            _gone.push_back(object);
            if (!object->IsNew())
                _deletes.push_back(object.get());
        } else if (object->IsNew()) {
            _inserts.push_back(object.get());
        } else if (object->ContentDiffers()) {
            _updates.push_back(object.get());
        }
    }
    std::reverse(_deletes.begin(), _deletes.end());
}

void ChangeWriter::Store(StoreSession& session, const std::vector<EventRow>& events) {
    StoreTransaction transaction(session);
    WriteRows(session);
    if (_stale)
        throw StoreFailure(*_stale);
    CheckKeys(session);
    for (const EventRow& event : events)
        session.Table<EventRow>().Insert(event);
    transaction.Commit();
}

// All rows are tried even when one is stale, so that every stale object gets its mark.
void ChangeWriter::WriteRows(StoreSession& session) {
    for (StoredObject* object : _deletes)
        if (!object->WriteDelete(session))
            NoteStale(session, *object);
    for (StoredObject* object : _inserts)
        object->WriteInsert(session, _stamp);
    for (StoredObject* object : _updates)
        if (!object->WriteUpdate(session, _stamp))
            NoteStale(session, *object);
}

void ChangeWriter::NoteStale(StoreSession& session, StoredObject& object) {
    object._stale = true;
    const std::optional<std::string> modifier = object.StoredModifier(session);
    if (_stale)
        return;
    if (modifier)
        _stale.emplace(20902, std::vector<std::string>{object.DisplayName(), *modifier});
    else
        _stale.emplace(20904, std::vector<std::string>{object.DisplayName()});
}

void ChangeWriter::CheckKeys(StoreSession& session) {
    for (const Objects* objects : {&_inserts, &_updates})
        for (const StoredObject* object : *objects)
            if (!object->KeysHold(session))
                throw StoreFailure(20903,
                                   {session.Path(), "\"" + object->DisplayName() + "\" exists already"});
}

std::vector<std::shared_ptr<StoredObject>> ChangeWriter::Settle() {
    for (const Objects* objects : {&_inserts, &_updates})
        for (StoredObject* object : *objects) {
            object->TakeSaved(_stamp);
            object->_stale = false;
        }
    return _gone;
}

} // namespace trellis
