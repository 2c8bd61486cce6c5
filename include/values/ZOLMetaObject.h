#pragma once

// ZOLMetaObject: what a class says of itself at run time. One static object per class, in the class that
// GetMetaObject of ZOLBaseUnknown names.
struct ZOLMetaObject {
    const char* name;
    const ZOLMetaObject* base; // null for the root
};

// Declares, inside a class, its meta object and the override that gives it.
#define ZOL_META_OBJECT(Class, Base)                                                                         \
public:                                                                                                      \
    static const ZOLMetaObject& Meta() {                                                                     \
        static const ZOLMetaObject meta{#Class, &Base::Meta()};                                              \
        return meta;                                                                                         \
    }                                                                                                        \
    const ZOLMetaObject& GetMetaObject() const override {                                                    \
        return Meta();                                                                                       \
    }
