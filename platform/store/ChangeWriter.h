#pragma once

#include "store/StoreFailure.h"
#include "store/StoreSession.h"
#include "store/StoredObject.h"

#include <memory>
#include <optional>
#include <vector>

namespace trellis {

struct EventRow;

// ChangeWriter: writes a set of unsaved objects in one transaction. It changes nothing in memory but the stale
// marks until Store has returned; then Settle makes the objects what a save leaves.
class ChangeWriter {
public:
    // `withModel`: also what was removed directly on the model.
    ChangeWriter(std::vector<std::shared_ptr<StoredObject>> objects, SaveStamp stamp, bool withModel);

    // Throws StoreFailure, with nothing written.
    void Store(StoreSession& session, const std::vector<EventRow>& events);
    // Objects that are gone now; all others are clean.
    std::vector<std::shared_ptr<StoredObject>> Settle();

private:
    using Objects = std::vector<StoredObject*>;

    void WriteRows(StoreSession& session);
    void CheckKeys(StoreSession& session);
    void NoteStale(StoreSession& session, StoredObject& object);

    std::vector<std::shared_ptr<StoredObject>> _objects;
    SaveStamp _stamp;
    Objects _deletes; // in reverse order of kinds
    Objects _inserts;
    Objects _updates;
    std::vector<std::shared_ptr<StoredObject>> _gone;
    std::optional<StoreFailure> _stale; // of the first stale object
};

} // namespace trellis
