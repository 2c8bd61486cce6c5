#include "graph/UndoRing.h"

namespace trellis {

void UndoRing::Save(const ZOLListPtrZOLParameter& parameters,
                    const ZOLListValZOLUnicodeString& ignoredCategories) {
    State& state = _states[static_cast<std::size_t>(_current)];
    state.parameters.clear();
    for (const ZOLParameter* parameter : parameters)
        state.parameters.push_back(*parameter);
    state.ignoredCategories = ignoredCategories;
    _current = (_current + 1) % Slots;
    if (_last == _oldest)
        _oldest = _current;
    else if (_oldest == -1)
        _oldest = 0;
    _last = _current;
}

const UndoRing::State* UndoRing::Undo() {
    if (_oldest == -1 || (_oldest + 1) % Slots == _current)
        return nullptr;
    _current = (_current + Slots - 1) % Slots;
    return &Shown();
}

const UndoRing::State* UndoRing::Redo() {
    if (_last == _current)
        return nullptr;
    _current = (_current + 1) % Slots;
    return &Shown();
}

void UndoRing::Clear() {
    *this = UndoRing();
}

} // namespace trellis
