#include "toolkit/NodeMark.h"

#include <cstddef>

namespace trellis {

namespace {

// In the order of the marks and of the alerts.
constexpr const char* MarkWords[] = {"",
                                     "undecided",
                                     "chosen by the user",
                                     "chosen by a rule",
                                     "rejected by the user",
                                     "rejected by a rule",
                                     "ignored",
                                     "decided",
                                     "choice missing"};
constexpr const char* AlertWords[] = {"", "left open by a rule", "in conflict"};

} // namespace

const char* WordsFor(NodeMark mark) {
    return MarkWords[static_cast<std::size_t>(mark)];
}

const char* WordsFor(NodeAlert alert) {
    return AlertWords[static_cast<std::size_t>(alert)];
}

} // namespace trellis
