#pragma once

#include "values/ObjID.h"
#include "values/TrellisApi.h"
#include "values/ZOLUnicodeString.h"
#include "values/_SEQUENCE_octet.h"

#include <string>
#include <string_view>

namespace trellis {

// ObjectIdentifier: the identifier of a part or link, and the one place where its forms are converted. It is 50
// hexadecimal digits in lower case; callers see them as octets, texts or a flat C value, the store as text.
class TRELLIS_API ObjectIdentifier {
public:
    static constexpr std::size_t Length = 50;

    // No identifier.
    ObjectIdentifier() = default;
    // From any of the forms; what is not 50 hexadecimal digits gives no identifier.
    explicit ObjectIdentifier(std::string_view digits);
    explicit ObjectIdentifier(const _SEQUENCE_octet& octets) : ObjectIdentifier(octets.Text()) {}
    explicit ObjectIdentifier(const ObjID& flat);

    // The identifier that belongs to a name in a source of data: the same name gives the same identifier on every
    // machine and at all times. `kind` keeps names of different kinds of objects apart.
    static ObjectIdentifier Derived(std::string_view kind, std::string_view name);

    // One that no object has: drawn at random.
    static ObjectIdentifier Unique();

    bool IsEmpty() const { return _digits.empty(); }
    const std::string& Text() const { return _digits; }
    // 50 octets, or none.
    _SEQUENCE_octet Octets() const { return _SEQUENCE_octet(_digits); }
    ObjID Flat() const;

    friend bool operator==(const ObjectIdentifier&, const ObjectIdentifier&) = default;

private:
    std::string _digits;
};

} // namespace trellis
