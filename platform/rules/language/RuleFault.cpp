#include "rules/language/RuleFault.h"

#include "values/ZOLGYRError.h"

namespace trellis {

ZOLUnicodeString RuleFault::Verdict(const ZOLUnicodeString& rule) const {
    const ZOLUnicodeString before(std::string_view(rule.Bytes()).substr(0, offset));
    std::vector<ZOLUnicodeString> parameters = {ZOLUnicodeString::FromNumber(before.GetLengthInChar() + 1)};
    parameters.insert(parameters.end(), texts.begin(), texts.end());
    ZOLGYRError error;
    error.Set(number, std::move(parameters));
    ZOLUnicodeString text;
    error.GetLongMsg(text);
    return text;
}

ZOLUnicodeString RuleFault::ValidVerdict() {
    ZOLGYRError error;
    error.Set(Valid);
    ZOLUnicodeString text;
    error.GetLongMsg(text);
    return text;
}

} // namespace trellis
