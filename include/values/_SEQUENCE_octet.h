#pragma once

#include "values/ContractBreach.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// _SEQUENCE_octet: a sequence of octets, counted from 0. Identifiers of parts and links are such sequences, of
// exactly 50 printable octets. An index outside ends the process.
class _SEQUENCE_octet {
public:
    _SEQUENCE_octet() = default;
    explicit _SEQUENCE_octet(std::string_view octets) : _octets(octets.begin(), octets.end()) {}

    unsigned length() const { return static_cast<unsigned>(_octets.size()); }
    // Cuts, or fills with zeros.
    void length(unsigned count) { _octets.resize(count); }
    std::uint8_t& operator[](unsigned i) { return _octets[Checked(i)]; }
    std::uint8_t operator[](unsigned i) const { return _octets[Checked(i)]; }
    std::string Text() const { return std::string(_octets.begin(), _octets.end()); }

    friend bool operator==(const _SEQUENCE_octet&, const _SEQUENCE_octet&) = default;

private:
    std::size_t Checked(unsigned i) const {
        if (i >= _octets.size())
            ContractBreach("_SEQUENCE_octet::operator[]", "index outside 0..length()-1");
        return i;
    }

    std::vector<std::uint8_t> _octets;
};

// Whether two identifiers are the same, octet by octet.
inline bool SequenceIsEqual(const _SEQUENCE_octet& a, const _SEQUENCE_octet& b) {
    return a == b;
}
