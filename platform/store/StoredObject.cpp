#include "store/StoredObject.h"

#include "store/Workspace.h"

namespace trellis {

StoredObject::State StoredObject::GetState() const {
    if (_gone)
        return State::Gone;
    if (_removedBy)
        return State::Removed;
    if (IsNew())
        return State::New;
    return ContentDiffers() ? State::Changed : State::Clean;
}

bool StoredObject::MayChange(ZOLGYRError& error) const {
    if (IsAlive())
        return true;
    error.Set(60301, {ZOLUnicodeString(DisplayName())});
    return false;
}

void StoredObject::ContentChanged() {
    _workspace->ContentChanged(*this);
}

} // namespace trellis
