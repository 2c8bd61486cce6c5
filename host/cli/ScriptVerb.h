#pragma once

#include <functional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace trellis {

using Words = std::vector<std::string>;

// A verb of the script language. The words that it gets are those behind the verb, as many as it asked for.
struct ScriptVerb {
    static constexpr std::size_t Many = 1000;

    const char* name;
    const char* arguments; // as shown to people
    std::size_t fewest;
    std::size_t most;
    std::function<void(const Words&, std::ostream&)> run;
};

// What a verb throws when it cannot do what it was told; the reason is shown with the line.
struct ScriptRefusal : std::runtime_error {
    using std::runtime_error::runtime_error;
};

} // namespace trellis
