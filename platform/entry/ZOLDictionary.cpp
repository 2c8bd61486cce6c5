#include "entry/ZOLDictionary.h"

#include <list>
#include <string>

namespace {

struct Entry {
    const ZOLDictionary* owner;
    std::string name;
    void* factory;
};

// Made at first use, since modules register from static constructors; never freed, since they leave from static
// destructors.
std::list<Entry>& Entries() {
    static auto* entries = new std::list<Entry>;
    return *entries;
}

} // namespace

ZOLDictionary::ZOLDictionary(const char* name, void* factory) {
    Entries().push_front(Entry{this, name, factory});
}

ZOLDictionary::~ZOLDictionary() {
    Entries().remove_if([this](const Entry& entry) { return entry.owner == this; });
}

void* ZOLDictionary::Find(const char* name) {
    for (const Entry& entry : Entries())
        if (entry.name == name)
            return entry.factory;
    return nullptr;
}
