#include "rules/language/RuleText.h"
#include "rules/language/NameSuggestion.h"
#include "rules/language/RuleParser.h"
#include "rules/language/RuleTexts.h"
#include "rules/language/RuleWriter.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace trellis {
namespace {

TEST(RuleTextTest, RenamingChangesReferencesAndNothingElse) {
    const ZOLUnicodeString text = "if  ( \"COLOUR\".\"RED\" or\"RED\" )\n then \"RED\".\"and RED\"   -- RED";
    EXPECT_EQ(RuleText::RenameOption(text, "RED", "R\"ED"),
              "if  ( \"COLOUR\".\"R\"\"ED\" or\"R\"\"ED\" )\n then \"RED\".\"and RED\"   -- RED");
    EXPECT_EQ(RuleText::RenameCategory(text, "RED", "TONE"),
              "if  ( \"COLOUR\".\"RED\" or\"RED\" )\n then \"TONE\".\"and RED\"   -- RED");
    EXPECT_EQ(RuleText::RenameCategory(text, "", "TONE"), text);
}

TEST(RuleTextTest, RenamingThereAndBackGivesTheTextAgain) {
    EXPECT_TRUE(rc::check([] {
        const RuleWriter writer(RuleWords::Neutral());
        const ZOLUnicodeString text = writer.Directive({*Terms(2), *Terms(2)});
        const auto references = RuleText::References(text);
        const ZOLUnicodeString fresh = "a name that no generator makes";
        const ZOLUnicodeString option = references.front().option;
        RC_ASSERT(RuleText::RenameOption(RuleText::RenameOption(text, option, fresh), fresh, option) == text);
        for (const OptionReference& reference :
             RuleText::References(RuleText::RenameOption(text, option, fresh)))
            RC_ASSERT(reference.option != option.Bytes());
    }));
}

TEST(RuleTextTest, TranslationLeavesNamesAndFaultyTextAlone) {
    const ZOLUnicodeString text = "IF \"if\".\"THEN\" Then ( and";
    EXPECT_EQ(RuleText::Translate(text, RuleWords::Catalogue(), RuleWords::Neutral()),
              "if \"if\".\"THEN\" then ( and");
}

TEST(RuleTextTest, ASuggestionIsNearOrNotMade) {
    const std::vector<ZOLUnicodeString> names = {"COLOUR", "COLLAR", "WHEEL",
                                                 "\xd0\xa6\xd0\xb2\xd0\xb5\xd1\x82"};
    EXPECT_EQ(NameSuggestion::Nearest("colour", names), "COLOUR");
    EXPECT_EQ(NameSuggestion::Nearest("COLOR", names), "COLOUR");
    EXPECT_EQ(NameSuggestion::Nearest("WEHEL", names), "");
    EXPECT_EQ(NameSuggestion::Nearest("WHEELS", names), "WHEEL");
    EXPECT_EQ(NameSuggestion::Nearest("X", names), "");
}

} // namespace
} // namespace trellis
