#pragma once

#include "store/StoredObject.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace trellis {

// ChangeScope: a set of unsaved changes, in the order in which a save writes them: by kind, then by id.
class ChangeScope {
public:
    void Add(const std::shared_ptr<StoredObject>& object);
    void Remove(const StoredObject& object);
    bool IsEmpty() const { return _objects.empty(); }
    std::vector<std::shared_ptr<StoredObject>> All() const;
    void ForEachOf(RowKind kind, const std::function<void(StoredObject&)>& visit) const;

private:
    std::map<std::pair<RowKind, std::int64_t>, std::shared_ptr<StoredObject>> _objects;
};

} // namespace trellis
