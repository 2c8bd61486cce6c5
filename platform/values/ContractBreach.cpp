#include "values/ContractBreach.h"

#include <cstdio>
#include <cstdlib>

void ContractBreach(const char* function, const char* reason) {
    std::fprintf(stderr, "%s: %s\n", function, reason);
    std::fflush(stderr);
    std::abort();
}
