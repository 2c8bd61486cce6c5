#pragma once

#include "store/StoredObject.h"

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <unordered_map>

namespace trellis {

// IdentityMap: the one object per stored object that the process knows, by kind and id.
class IdentityMap {
public:
    std::shared_ptr<StoredObject> Find(RowKind kind, std::int64_t id) const;
    void Add(const std::shared_ptr<StoredObject>& object);
    void Remove(const StoredObject& object);
    void ForEach(const std::function<void(StoredObject&)>& visit) const;

private:
    using Objects = std::unordered_map<std::int64_t, std::shared_ptr<StoredObject>>;
    Objects& Of(RowKind kind) { return _objects[static_cast<std::size_t>(kind)]; }

    std::array<Objects, static_cast<std::size_t>(RowKind::Count)> _objects;
};

} // namespace trellis
