#pragma once

#include "values/ZOLListVal.h"
#include "values/ZOLParameter.h"

#include <array>
#include <vector>

namespace trellis {

// UndoRing: the last ten states of a selection, of which nine can be taken back. A state saved after some were taken
// back ends all that could be done again. Once the ring has wrapped, a state saved after some were taken back also
// moves the oldest one that can be reached.
class UndoRing {
public:
    struct State {
        std::vector<ZOLParameter> parameters;
        ZOLListValZOLUnicodeString ignoredCategories;
    };

    void Save(const ZOLListPtrZOLParameter& parameters, const ZOLListValZOLUnicodeString& ignoredCategories);
    // One state back, or forth again; null when there is none. The state stays in the ring.
    const State* Undo();
    const State* Redo();
    void Clear();

private:
    static constexpr int Slots = 10;

    const State& Shown() const { return _states[static_cast<std::size_t>((_current + Slots - 1) % Slots)]; }

    std::array<State, Slots> _states;
    int _current = 0; // the slot of the next save; the state on screen is the one before
    int _oldest = -1; // -1: nothing was saved yet
    int _last = 0;    // behind the newest state
};

} // namespace trellis
