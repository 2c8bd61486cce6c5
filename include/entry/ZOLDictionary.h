#pragma once

#include "values/TrellisApi.h"

// ZOLDictionary: one entry in the process's table of loaded modules, which ties a module's name to its factory. A
// module keeps one as a static object, so the entry comes when the library is loaded and leaves when it is
// unloaded. (It has nothing to do with dictionaries of options.)
class TRELLIS_API ZOLDictionary {
public:
    // name     of the module, copied; the last entry of a name is the one that is found
    // factory  address of the function that makes the module's object; what its type is, the module says
    ZOLDictionary(const char* name, void* factory);
    ~ZOLDictionary();
    ZOLDictionary(const ZOLDictionary&) = delete;
    ZOLDictionary& operator=(const ZOLDictionary&) = delete;

    // The factory of a module, or null when no loaded module has that name.
    static void* Find(const char* name);
};
