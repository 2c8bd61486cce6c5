#include "values/ZOLParameter.h"

#include "values/ZOLCategory.h"
#include "values/ZOLOption.h"

#include <algorithm>
#include <optional>
#include <string>

namespace {

constexpr char Mark = '"';
constexpr char Separator = '.';
constexpr const char* NotWord = "not ";

std::string Quoted(const ZOLUnicodeString& name) {
    std::string text(1, Mark);
    for (const char octet : name.Bytes()) {
        if (octet == Mark)
            text += Mark;
        text += octet;
    }
    return text + Mark;
}

// The name in quotation marks that begins at the position, which moves behind it.
std::optional<std::string> ReadQuoted(const std::string& text, std::size_t& position) {
    if (position >= text.size() || text[position] != Mark)
        return std::nullopt;
    std::string name;
    for (std::size_t i = position + 1; i < text.size(); ++i) {
        const bool isMark = text[i] == Mark;
        if (isMark && (i + 1 == text.size() || text[i + 1] != Mark)) {
            position = i + 1;
            return name;
        }
        name += text[i];
        if (isMark)
            ++i;
    }
    return std::nullopt;
}

} // namespace

ZOLParameter::ZOLParameter(const ZOLUnicodeString& category, const ZOLUnicodeString& option, const int isNot)
    : ZOLParameter(category, {}, option, {}, isNot) {}

ZOLParameter::ZOLParameter(const ZOLUnicodeString& category, const ZOLUnicodeString& categoryDescription,
                           const ZOLUnicodeString& option, const ZOLUnicodeString& optionDescription,
                           const int isNot)
    : _category(category),
      _categoryDescription(categoryDescription),
      _option(option),
      _optionDescription(optionDescription),
      _isNot(isNot != 0) {}

ZOLParameter::ZOLParameter(const ZOLCategory& category, const ZOLOption& option)
    : ZOLParameter(category.GetName(), category.GetDescription(), option.GetName(), option.GetDescription(),
                   option.IsNot()) {
    _categoryExclusivity = category.GetExclusivity();
}

ZOLUnicodeString ZOLParameter::GetParameterString(int withSign) const {
    std::string text = withSign && _isNot ? NotWord : "";
    if (!_category.IsEmpty())
        text += Quoted(_category) + Separator;
    return text + Quoted(_option);
}

int ZOLParameter::ReadParameterString(const ZOLUnicodeString& text, int& position, ZOLParameter& parameter) {
    const std::string& bytes = text.Bytes();
    if (position < 0)
        return 0;
    std::size_t at = static_cast<std::size_t>(position);
    std::optional<std::string> first = ReadQuoted(bytes, at);
    if (!first)
        return 0;
    std::optional<std::string> second;
    if (at < bytes.size() && bytes[at] == Separator) {
        ++at;
        second = ReadQuoted(bytes, at);
        if (!second)
            return 0;
    }
    parameter = second ? ZOLParameter(*first, *second, 0) : ZOLParameter({}, *first, 0);
    position = static_cast<int>(at);
    return 1;
}

int ParameterInList(const ZOLParameter* parameter, const ZOLListPtrZOLParameter& list, int from, int to) {
    if (!parameter)
        return 0;
    const int last = to < 0 ? list.Size() : std::min(to, list.Size());
    for (int i = std::max(from, 1); i <= last; ++i)
        if (list[i] && *list[i] == *parameter)
            return 1;
    return 0;
}
