#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLMetaObject.h"

// ZOLBaseUnknown: the counted root of commands and of stored objects. An object starts with a count of 0 and is
// deleted by the Release that brings it back there. What the toolkit's tree owns is held by the tree, which takes
// one reference. Not for several threads.
class TRELLIS_API ZOLBaseUnknown {
public:
    // This object as the given class, or null when it is none of that kind. The count stays.
    virtual ZOLBaseUnknown* QueryInterface(const ZOLMetaObject& kind);
    virtual int AddRef();
    virtual int Release();
    virtual ~ZOLBaseUnknown();
    virtual const ZOLMetaObject& GetMetaObject() const;
    // Whether this is exactly of the named class, or of it or a class derived from it.
    virtual int IsA(const char* className) const;
    virtual int IsAKindOf(const char* className) const;
    // 1 for an object that stands for nothing: one whose stored object was removed or unloaded.
    virtual int IsNull() const;
    // Whether both mean the same object: identity here, the same stored object in the service.
    virtual int IsEqual(const ZOLBaseUnknown* other) const;
    // Ties what a layer below keeps for this object, such as the native widget of a view, to it; not owned.
    virtual void SetImpl(void* implementation);
    // As the first form, by name.
    virtual ZOLBaseUnknown* QueryInterface(const char* className);

    void* GetImpl() const { return _implementation; }
    static const ZOLMetaObject& Meta();

protected:
    ZOLBaseUnknown() = default;
    ZOLBaseUnknown(const ZOLBaseUnknown&) = delete;
    ZOLBaseUnknown& operator=(const ZOLBaseUnknown&) = delete;

private:
    int _references = 0;
    void* _implementation = nullptr;
};
