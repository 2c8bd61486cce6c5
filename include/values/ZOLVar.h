#pragma once

#include "values/ZOLBaseUnknown.h"

#include <cstddef>
#include <type_traits>
#include <utility>

// What a null handle is compared with.
struct ZOLNullVar {};
inline constexpr ZOLNullVar NULL_var{};

// ZOLVar: the one counted handle. Two handles are equal when they mean the same stored object, however and
// whenever each was fetched; two null handles are equal. Reaching through a null handle is a breach of the caller.
template <class T>
class ZOLVar {
public:
    ZOLVar() = default;
    ZOLVar(std::nullptr_t) {}
    ZOLVar(ZOLNullVar) {}
    ZOLVar(T* object) : _object(object) { Hold(); }
    ZOLVar(const ZOLVar& other) : _object(other._object) { Hold(); }
    ZOLVar(ZOLVar&& other) noexcept : _object(std::exchange(other._object, nullptr)) {}
    template <class U>
    requires(std::is_convertible_v<U*, T*> && !std::is_same_v<U, T>) ZOLVar(const ZOLVar<U>& other)
        : _object(other.Get()) {
        Hold();
    }
    ~ZOLVar() { Drop(); }
    ZOLVar& operator=(ZOLVar other) noexcept {
        std::swap(_object, other._object);
        return *this;
    }

    T* Get() const { return _object; }
    T* operator->() const { return _object; }
    T& operator*() const { return *_object; }
    explicit operator bool() const { return _object != nullptr; }

    // The same object as another interface; null when it has none of that kind.
    template <class U>
    ZOLVar<U> Narrow() const {
        return ZOLVar<U>(dynamic_cast<U*>(_object));
    }

    friend bool operator==(const ZOLVar& a, const ZOLVar& b) {
        return a._object == b._object || (a._object && b._object && a._object->IsEqual(b._object));
    }
    friend bool operator==(const ZOLVar& a, ZOLNullVar) { return a._object == nullptr; }

private:
    void Hold() {
        if (_object)
            _object->AddRef();
    }
    void Drop() {
        if (_object)
            _object->Release();
    }

    T* _object = nullptr;
};

using ZOLBaseUnknown_var = ZOLVar<ZOLBaseUnknown>;
