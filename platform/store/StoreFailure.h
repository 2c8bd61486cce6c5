#pragma once

#include "values/ZOLGYRError.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace trellis {

// StoreFailure: what went wrong below the workspace, as a number with the parameters of its text. It never
// leaves the platform: Workspace and the operations of the model turn it into the carrier of their caller.
//   20901 store out of reach or unreadable (name, reason)      20902 object changed by another (object, user)
//   20903 write failed (name, reason)                          20904 object no longer exists (object)
//   20912 store made by a newer version (name, its version, ours)
class StoreFailure : public std::runtime_error {
public:
    // Whether a repetition may succeed. Out of reach and read only it cannot.
    enum class Outlook { MayBeRepeated, Pointless };

    // A store that is out of reach (20901) is pointless, all else may be repeated.
    StoreFailure(int code, std::vector<std::string> parameters);
    StoreFailure(int code, std::vector<std::string> parameters, Outlook outlook);

    int Code() const { return _code; }
    const std::vector<std::string>& Parameters() const { return _parameters; }
    // Sets number and parameters, unless a number stands already: the first failure is the one to tell.
    // Display mode 1 when going on is pointless; else the mode stays.
    void Into(ZOLGYRError& error) const;

private:
    int _code;
    std::vector<std::string> _parameters;
    Outlook _outlook;
};

} // namespace trellis
