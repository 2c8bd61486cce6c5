#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLListVal.h"
#include "values/ZOLString.h"
#include "values/ZOLUnicodeString.h"

#include <memory>

class ZOLGYRError;

namespace trellis {
struct ResourceTexts;
}

// ZOLGYRResource: one named resource file, for those who read texts of a file that is not their own.
// Files are X resource files, one per class and language. The file of the site stands before that of the
// language, and that before English, key by key. No display is needed.
class TRELLIS_API ZOLGYRResource {
public:
    // Opens the file. One that is missing or unreadable is noted in the trace and answers every key as
    // missing; GetStatus tells.
    explicit ZOLGYRResource(const ZOLString& file);
    ~ZOLGYRResource();
    ZOLGYRResource(const ZOLGYRResource&);
    ZOLGYRResource& operator=(const ZOLGYRResource&);

    // The text of exactly this key; nothing is added to it, and X's wild cards have no meaning.
    //   result  1 found, though perhaps empty, which is a text like any other; 0 missing, and `value` stays
    int GetValue(const ZOLString& key, ZOLUnicodeString& value) const;
    // The same with parameters: %1 to %9 in the text give way to the parameters, a place without one
    // vanishes. What a parameter brings in is not looked at again.
    int GetValue(const ZOLString& key, ZOLUnicodeString& value,
                 const ZOLListVal<ZOLUnicodeString>& parameters) const;
    // The text of the key, or the given one when the key is missing.
    ZOLUnicodeString GetValueOr(const ZOLString& key, const ZOLUnicodeString& missing) const;

    // Sets 60180 with the file's name when no folder holds it, 60181 with the path when one that is there
    // cannot be read; else leaves the error alone.
    void GetStatus(ZOLGYRError& error) const;

    // Puts parameters into a text as GetValue does.
    static ZOLUnicodeString Fill(const ZOLUnicodeString& text,
                                 const ZOLListVal<ZOLUnicodeString>& parameters);

private:
    ZOLString _file;
    std::shared_ptr<const trellis::ResourceTexts> _texts;
};
