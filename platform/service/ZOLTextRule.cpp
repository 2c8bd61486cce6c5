#include "service/ZOLTextRule.h"

#include "rules/language/ReferenceCheck.h"
#include "rules/language/RuleText.h"

#include <set>

using trellis::OptionReference;
using trellis::RuleText;

namespace {

void AppendOnce(const std::string& name, std::set<std::string>& known, ZOLListValZOLUnicodeString& names) {
    if (!name.empty() && known.insert(name).second)
        names.Append(name);
}

} // namespace

ZOLTextRule::ZOLTextRule(const ZOLUnicodeString& text, const ZOLUnicodeString& name,
                         const ZOLUnicodeString& description)
    : _text(text), _name(name), _description(description) {}

int ZOLTextRule::Check(const ZOLListPtrZOLParameter& parameters, ZOLUnicodeString& message) const {
    if (!IsReadable(message))
        return 0;
    const trellis::RuleFault fault = trellis::ReferenceCheck(parameters).FindFault(_text);
    message = fault.number ? fault.Verdict(_text) : trellis::RuleFault::ValidVerdict();
    return fault.number == 0;
}

void ZOLTextRule::GetCategories(ZOLListValZOLUnicodeString& names) const {
    names.RemoveAll();
    std::set<std::string> known;
    for (const OptionReference& reference : RuleText::References(_text))
        AppendOnce(reference.category, known, names);
}

void ZOLTextRule::GetOptions(ZOLListValZOLUnicodeString& names, const ZOLUnicodeString& category) const {
    names.RemoveAll();
    std::set<std::string> known;
    for (const OptionReference& reference : RuleText::References(_text))
        if (category.IsEmpty() || reference.category == category.Bytes())
            AppendOnce(reference.option, known, names);
}

int ZOLTextRule::HasCategory(const ZOLUnicodeString& name) const {
    for (const OptionReference& reference : RuleText::References(_text))
        if (!reference.category.empty() && reference.category == name.Bytes())
            return 1;
    return 0;
}

int ZOLTextRule::HasOption(const ZOLUnicodeString& name) const {
    for (const OptionReference& reference : RuleText::References(_text))
        if (!reference.option.empty() && reference.option == name.Bytes())
            return 1;
    return 0;
}

void ZOLTextRule::RenameOption(const ZOLUnicodeString& from, const ZOLUnicodeString& to) {
    if (!from.IsEmpty())
        _text = RuleText::RenameOption(_text, from, to);
}

void ZOLTextRule::RenameCategory(const ZOLUnicodeString& from, const ZOLUnicodeString& to) {
    _text = RuleText::RenameCategory(_text, from, to);
}
