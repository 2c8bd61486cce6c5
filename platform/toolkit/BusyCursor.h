#pragma once

namespace trellis {

// BusyCursor: whether the busy cursor is up.
class BusyCursor {
public:
    static bool IsUp();
    static void Set(bool isUp);

    // A question is open: the cursor is lifted while it waits, and comes back behind it.
    class LiftedScope {
    public:
        LiftedScope() : _wasUp(IsUp()) { Set(false); }
        ~LiftedScope() { Set(_wasUp); }
        LiftedScope(const LiftedScope&) = delete;
        LiftedScope& operator=(const LiftedScope&) = delete;

    private:
        bool _wasUp;
    };
};

} // namespace trellis
