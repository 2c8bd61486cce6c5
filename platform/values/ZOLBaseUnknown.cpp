#include "values/ZOLBaseUnknown.h"

#include <cstring>

namespace {

bool Is(const ZOLMetaObject& kind, const char* className) {
    return className && std::strcmp(kind.name, className) == 0;
}

} // namespace

const ZOLMetaObject& ZOLBaseUnknown::Meta() {
    static const ZOLMetaObject meta{"ZOLBaseUnknown", nullptr};
    return meta;
}

ZOLBaseUnknown::~ZOLBaseUnknown() = default;

ZOLBaseUnknown* ZOLBaseUnknown::QueryInterface(const ZOLMetaObject& kind) {
    return IsAKindOf(kind.name) ? this : nullptr;
}

ZOLBaseUnknown* ZOLBaseUnknown::QueryInterface(const char* className) {
    return IsAKindOf(className) ? this : nullptr;
}

int ZOLBaseUnknown::AddRef() {
    return ++_references;
}

int ZOLBaseUnknown::Release() {
    const int left = --_references;
    if (left <= 0)
        delete this;
    return left;
}

const ZOLMetaObject& ZOLBaseUnknown::GetMetaObject() const {
    return Meta();
}

int ZOLBaseUnknown::IsA(const char* className) const {
    return Is(GetMetaObject(), className) ? 1 : 0;
}

int ZOLBaseUnknown::IsAKindOf(const char* className) const {
    for (const ZOLMetaObject* kind = &GetMetaObject(); kind; kind = kind->base)
        if (Is(*kind, className))
            return 1;
    return 0;
}

int ZOLBaseUnknown::IsNull() const {
    return 0;
}

int ZOLBaseUnknown::IsEqual(const ZOLBaseUnknown* other) const {
    return this == other ? 1 : 0;
}

void ZOLBaseUnknown::SetImpl(void* implementation) {
    _implementation = implementation;
}
