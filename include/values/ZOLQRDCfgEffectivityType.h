#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLUnicodeString.h"

// ZOLQRDCfgEffectivityType: the words for the kinds of an effectivity term. They are compared exactly, in
// lower case. "option_undef" and "option" say the same (an option without a limit), as do "pack_undef" and
// "pack": readers accept both. A word outside the table is of no kind.
class TRELLIS_API ZOLQRDCfgEffectivityType {
public:
    static constexpr const char* Date = "date";
    static constexpr const char* Range = "range";
    static constexpr const char* Option = "option";
    static constexpr const char* OptionDate = "option_date";
    static constexpr const char* OptionRange = "option_range";
    static constexpr const char* OptionUndef = "option_undef";
    static constexpr const char* Pack = "pack";
    static constexpr const char* PackDate = "pack_date";
    static constexpr const char* PackRange = "pack_range";
    static constexpr const char* PackUndef = "pack_undef";
    // A modification that all users see, and one that its holder alone sees.
    static constexpr const char* Modification = "modification";
    static constexpr const char* Personal = "personal";
    // A planned effectivity without any limit.
    static constexpr const char* None = "none";

    // What a term says, apart from its limits.
    enum class Subject { Other, Limits, Option, Pack, Modification };

    static Subject SubjectOf(const ZOLUnicodeString& type);
    static bool IsOptionKind(const ZOLUnicodeString& type) { return SubjectOf(type) == Subject::Option; }
    static bool IsPackKind(const ZOLUnicodeString& type) { return SubjectOf(type) == Subject::Pack; }
    // One of the eight option and pack kinds.
    static bool IsOptionOrPackKind(const ZOLUnicodeString& type) {
        return IsOptionKind(type) || IsPackKind(type);
    }
    // Whether terms of the kind are limited by two dates, by two numbers.
    static bool HasDates(const ZOLUnicodeString& type);
    static bool HasNumbers(const ZOLUnicodeString& type);

    // The kind of a term that gets an option, or a package: "range" gives "option_range", "date" gives
    // "option_date", any other gives "option_undef"; packages alike.
    static ZOLUnicodeString WithOption(const ZOLUnicodeString& type);
    static ZOLUnicodeString WithPack(const ZOLUnicodeString& type);
};
