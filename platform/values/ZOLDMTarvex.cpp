#include "values/ZOLDMTarvex.h"

#include "values/Settings.h"

int ZOLDMTarvex::GetLogicalDec(const ZOLUnicodeString& key, int& rc) {
    const auto declared = trellis::Settings::Current().Declared(key.Bytes());
    if (!declared) {
        rc = 1;
        return 0;
    }
    return trellis::Settings::LogicalNumber(declared->text).value_or(0);
}

ZOLUnicodeString ZOLDMTarvex::GetStringDec(const ZOLUnicodeString& key, int& rc) {
    const auto declared = trellis::Settings::Current().Declared(key.Bytes());
    if (!declared) {
        rc = 1;
        return {};
    }
    return declared->text;
}
