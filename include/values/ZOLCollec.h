#pragma once

// Words that all collections share.
class ZOLCollec {
public:
    // What RemoveAll does with the memory of a list; its elements are gone either way.
    enum MemoryHandling { KeepMemory, FreeMemory };
};
