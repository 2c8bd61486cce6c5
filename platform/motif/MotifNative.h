#pragma once

// The native headers. Their macro for "no resource" would hide names of our own, such as the button that is
// none; 0 stands for it.

#include <X11/Intrinsic.h>
#include <Xm/Protocols.h>
#include <Xm/Xm.h>

#undef None
