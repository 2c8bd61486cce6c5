#pragma once

class ZOLDMInstance;

namespace trellis {

// FunctionRight: the right to a function, as operations ask it of an instance. Some functions let a high privilege
// override a refusal.
class FunctionRight {
public:
    static constexpr int NoOverride = -1;

    // privilegeLimit  the privilege from which a refusal no longer stands, or NoOverride
    constexpr FunctionRight(const char* function, int privilegeLimit = NoOverride)
        : _function(function), _privilegeLimit(privilegeLimit) {}

    // 0 when the function may go on, else the number of the error to report.
    int Refusal(const ZOLDMInstance& instance) const;

private:
    const char* _function;
    int _privilegeLimit;
};

} // namespace trellis
