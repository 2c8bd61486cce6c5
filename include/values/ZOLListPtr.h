#pragma once

#include "values/ZOLRawColl.h"

// ZOLListPtr: a list of pointers, counted from 1, that never owns what they point to: whoever owns the objects
// deletes them, from the last position to the first, sets each slot to null and only then calls RemoveAll
// (ZOLDeleteElements does all three). A copy shares its elements with the original.
template <class T>
class ZOLListPtr : public ZOLRawColl<T*> {
public:
    using ZOLRawColl<T*>::ZOLRawColl;
};

// Deletes all elements of a list whose objects the caller owns, from the last to the first, and empties it.
template <class T>
void ZOLDeleteElements(ZOLListPtr<T>& list) {
    for (int i = list.Size(); i >= 1; --i) {
        T* element = list[i];
        list[i] = nullptr;
        delete element;
    }
    list.RemoveAll(ZOLCollec::FreeMemory);
}
