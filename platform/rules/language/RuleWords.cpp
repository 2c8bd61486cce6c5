#include "rules/language/RuleWords.h"

#include "values/ZOLMsgCatalog.h"

#include <algorithm>

namespace trellis {

namespace {

constexpr const char* NeutralTexts[] = {"if", "then", "and", "or", "not"};

std::string Capitals(std::string_view text) {
    ZOLUnicodeString capitals(text);
    capitals.ToUpper();
    return capitals.Bytes();
}

} // namespace

RuleWords::RuleWords(std::array<std::string, Count> texts) : _texts(std::move(texts)) {
    std::transform(_texts.begin(), _texts.end(), _capitals.begin(), Capitals);
}

const RuleWords& RuleWords::Neutral() {
    static const RuleWords words(
        {NeutralTexts[0], NeutralTexts[1], NeutralTexts[2], NeutralTexts[3], NeutralTexts[4]});
    return words;
}

const RuleWords& RuleWords::Catalogue() {
    static const RuleWords words = [] {
        const ZOLMsgCatalog catalogue("RuleKeyWords");
        std::array<std::string, Count> texts;
        for (std::size_t i = 0; i < Count; ++i) {
            texts[i] = catalogue.GetMsg(NeutralTexts[i]).Bytes();
            if (texts[i].empty())
                texts[i] = NeutralTexts[i];
        }
        return RuleWords(std::move(texts));
    }();
    return words;
}

std::optional<RuleWord> RuleWords::Find(std::string_view text) const {
    const std::string capitals = Capitals(text);
    const auto found = std::find(_capitals.begin(), _capitals.end(), capitals);
    if (found != _capitals.end())
        return static_cast<RuleWord>(found - _capitals.begin());
    if (this == &Neutral())
        return std::nullopt;
    return Neutral().Find(text);
}

} // namespace trellis
