#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLUnicodeString.h"
#include "values/_SEQUENCE_octet.h"

#include <cstdint>
#include <variant>
#include <vector>

class CORBAAny;

// _SEQUENCE_CORBAAny: a sequence of loosely typed values, counted from 0.
class TRELLIS_API _SEQUENCE_CORBAAny {
public:
    _SEQUENCE_CORBAAny();
    _SEQUENCE_CORBAAny(const _SEQUENCE_CORBAAny&);
    _SEQUENCE_CORBAAny& operator=(const _SEQUENCE_CORBAAny&);
    ~_SEQUENCE_CORBAAny();

    unsigned length() const;
    // Cuts, or fills with empty values.
    void length(unsigned count);
    CORBAAny& operator[](unsigned i);
    const CORBAAny& operator[](unsigned i) const;

private:
    std::vector<CORBAAny> _values;
};

// A point in time on its way through a value: seconds since 1970, UTC. A type of its own, since a number and a
// time must be told apart.
struct ZOLTimeValue {
    std::int64_t seconds = 0;
};

// CORBAAny: one loosely typed value: nothing, a text, a number, a time, octets or a sequence of values. Reading
// it as another type than it holds answers false and leaves the target as it was; nothing is converted.
class TRELLIS_API CORBAAny {
public:
    CORBAAny() = default;

    void operator<<=(const ZOLUnicodeString& text) { _value = text; }
    void operator<<=(int number) { _value = number; }
    void operator<<=(ZOLTimeValue time) { _value = time; }
    void operator<<=(const _SEQUENCE_octet& octets) { _value = octets; }
    void operator<<=(const _SEQUENCE_CORBAAny& values) { _value = values; }

    bool operator>>=(ZOLUnicodeString& text) const { return Take(text); }
    bool operator>>=(int& number) const { return Take(number); }
    bool operator>>=(ZOLTimeValue& time) const { return Take(time); }
    bool operator>>=(_SEQUENCE_octet& octets) const { return Take(octets); }
    bool operator>>=(_SEQUENCE_CORBAAny& values) const { return Take(values); }

private:
    template <class T>
    bool Take(T& target) const {
        const T* value = std::get_if<T>(&_value);
        if (value)
            target = *value;
        return value != nullptr;
    }

    std::variant<std::monostate, ZOLUnicodeString, int, ZOLTimeValue, _SEQUENCE_octet, _SEQUENCE_CORBAAny>
        _value;
};
