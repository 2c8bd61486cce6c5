#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace trellis {

enum class RuleWord { If, Then, And, Or, Not };

// RuleWords: the keywords of rule texts in one language. Stored texts have the neutral words; people read and type
// those of the catalogue "RuleKeyWords".
class RuleWords {
public:
    static const RuleWords& Neutral();
    // The words of the user's language; a key that the catalogue lacks has its neutral word.
    static const RuleWords& Catalogue();

    const std::string& Text(RuleWord word) const { return _texts[static_cast<std::size_t>(word)]; }
    // Whatever the case of letters. The neutral words are understood beside one's own, unless they mean another
    // word here.
    std::optional<RuleWord> Find(std::string_view text) const;

private:
    static constexpr std::size_t Count = 5;

    explicit RuleWords(std::array<std::string, Count> texts);

    std::array<std::string, Count> _texts;
    std::array<std::string, Count> _capitals;
};

} // namespace trellis
