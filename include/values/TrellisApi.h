// TRELLIS_API marks what a shared library of the system shows to others; all else is hidden.
#pragma once

#define TRELLIS_API __attribute__((visibility("default")))
