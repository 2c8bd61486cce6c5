#include "store/IdentityMap.h"

namespace trellis {

std::shared_ptr<StoredObject> IdentityMap::Find(RowKind kind, std::int64_t id) const {
    const Objects& objects = _objects[static_cast<std::size_t>(kind)];
    const auto found = objects.find(id);
    return found == objects.end() ? nullptr : found->second;
}

void IdentityMap::Add(const std::shared_ptr<StoredObject>& object) {
    Of(object->Kind())[object->Id()] = object;
}

void IdentityMap::Remove(const StoredObject& object) {
    Of(object.Kind()).erase(object.Id());
}

void IdentityMap::ForEach(const std::function<void(StoredObject&)>& visit) const {
    for (const Objects& objects : _objects)
        for (const auto& [id, object] : objects)
            visit(*object);
}

} // namespace trellis
