#include "store/ChangeScope.h"

#include <limits>

namespace trellis {

void ChangeScope::Add(const std::shared_ptr<StoredObject>& object) {
    _objects[{object->Kind(), object->Id()}] = object;
}

void ChangeScope::Remove(const StoredObject& object) {
    _objects.erase({object.Kind(), object.Id()});
}

std::vector<std::shared_ptr<StoredObject>> ChangeScope::All() const {
    std::vector<std::shared_ptr<StoredObject>> objects;
    objects.reserve(_objects.size());
    for (const auto& [key, object] : _objects)
        objects.push_back(object);
    return objects;
}

void ChangeScope::ForEachOf(RowKind kind, const std::function<void(StoredObject&)>& visit) const {
    constexpr std::int64_t lowest = std::numeric_limits<std::int64_t>::min();
    for (auto at = _objects.lower_bound({kind, lowest}); at != _objects.end() && at->first.first == kind;
         ++at)
        visit(*at->second);
}

} // namespace trellis
