#pragma once

#include "rules/language/RuleLexer.h"

#include <functional>

namespace trellis {

// RuleText: changes in the text of a rule that leave everything else in it as it is, blanks and all, so that they work
// on texts that do not parse, too.
class RuleText {
public:
    // The keywords in place of those of the other language. Names are never touched.
    static ZOLUnicodeString Translate(const ZOLUnicodeString& text, const RuleWords& from,
                                      const RuleWords& to);
    // Every option of that name, whatever its category.
    static ZOLUnicodeString RenameOption(const ZOLUnicodeString& text, const ZOLUnicodeString& from,
                                         const ZOLUnicodeString& to);
    static ZOLUnicodeString RenameCategory(const ZOLUnicodeString& text, const ZOLUnicodeString& from,
                                           const ZOLUnicodeString& to);
    // In the order in which they stand, each as often as it stands.
    static std::vector<OptionReference> References(const ZOLUnicodeString& text);

private:
    using Replacement = std::function<bool(const RuleToken& token, std::string& replacement)>;

    static ZOLUnicodeString Rewritten(const ZOLUnicodeString& text, const RuleWords& words,
                                      const Replacement& replace);
};

} // namespace trellis
