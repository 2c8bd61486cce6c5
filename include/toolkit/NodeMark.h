#pragma once

#include "values/TrellisApi.h"

namespace trellis {

// What a node says of a choice: an option, who decided on it; a group of them, whether it is decided. Views draw it in
// a form that can be told without colour.
enum class NodeMark {
    None, // no part of a choice
    Undecided,
    ChosenByUser,
    ChosenByRule,
    RejectedByUser,
    RejectedByRule,
    Ignored,
    Decided, // a group in which a decision is in force
    Missing, // a group that needs a decision and has none
};

// What is wrong with it besides.
enum class NodeAlert {
    None,
    Irresolution, // the rules leave open what follows
    Conflict,
};

// In words, such as "chosen by the user"; empty for None.
TRELLIS_API const char* WordsFor(NodeMark mark);
TRELLIS_API const char* WordsFor(NodeAlert alert);

} // namespace trellis
