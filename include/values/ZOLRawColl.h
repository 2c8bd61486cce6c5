#pragma once

#include "values/ZOLListVal.h"

// ZOLRawColl: raw collections of small values, counted from 1 like the lists.
template <class T>
class ZOLRawColl : public ZOLListVal<T> {
public:
    using ZOLListVal<T>::ZOLListVal;
};

using ZOLRawCollint = ZOLRawColl<int>;
// Of pointers that it does not own.
using ZOLRawCollPV = ZOLRawColl<void*>;
