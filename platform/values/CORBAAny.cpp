#include "values/CORBAAny.h"

#include "values/ContractBreach.h"

#include <utility>

_SEQUENCE_CORBAAny::_SEQUENCE_CORBAAny() = default;
_SEQUENCE_CORBAAny::_SEQUENCE_CORBAAny(const _SEQUENCE_CORBAAny&) = default;
_SEQUENCE_CORBAAny& _SEQUENCE_CORBAAny::operator=(const _SEQUENCE_CORBAAny&) = default;
_SEQUENCE_CORBAAny::~_SEQUENCE_CORBAAny() = default;

unsigned _SEQUENCE_CORBAAny::length() const {
    return static_cast<unsigned>(_values.size());
}

void _SEQUENCE_CORBAAny::length(unsigned count) {
    _values.resize(count);
}

const CORBAAny& _SEQUENCE_CORBAAny::operator[](unsigned i) const {
    if (i >= _values.size())
        ContractBreach("_SEQUENCE_CORBAAny::operator[]", "index outside 0..length()-1");
    return _values[i];
}

CORBAAny& _SEQUENCE_CORBAAny::operator[](unsigned i) {
    return const_cast<CORBAAny&>(std::as_const(*this)[i]);
}
