#include "session/KeptSelection.h"
#include "support/TemporaryFolder.h"
#include "values/ZOLGYRError.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <filesystem>
#include <fstream>

namespace trellis::test {

RC_GTEST_PROP(KeptSelectionTest, WhatIsWrittenIsRead, ()) {
    const auto name = rc::gen::nonEmpty(
        rc::gen::container<std::string>(rc::gen::element('A', ' ', '"', '\\', '\n', '{', '\t', '\x01')));
    const auto choices = *rc::gen::container<std::vector<std::tuple<std::string, std::string, bool>>>(
        rc::gen::tuple(name, name, rc::gen::arbitrary<bool>()));
    KeptSelection kept;
    kept.product = *name;
    for (const auto& [category, option, isNot] : choices) {
        kept.choices.emplace_back(category, option, isNot);
        kept.ignoredCategories.Append(category);
    }
    const TemporaryFolder folder;
    ZOLGYRError error;
    RC_ASSERT(kept.Write(folder.Path("s.json"), error));
    const auto read = KeptSelection::Read(folder.Path("s.json"), error);
    RC_ASSERT(read.has_value());
    RC_ASSERT(read->product == kept.product);
    RC_ASSERT(read->choices == kept.choices);
    RC_ASSERT(read->ignoredCategories.Size() == kept.ignoredCategories.Size());
}

TEST(KeptSelectionFile, WhatIsNoSelectionIsRefusedWithItsReason) {
    const TemporaryFolder folder;
    ZOLGYRError error;
    for (const std::string& unreadable : {folder.Path("none.json"), folder.Path()}) {
        error.Clear();
        EXPECT_FALSE(KeptSelection::Read(unreadable, error));
        EXPECT_EQ(error.GetCode(), 60634) << unreadable;
    }
    for (const char* content :
         {"", "[]", "7", "{}", R"({"trellis selection": 2, "choices": []})", R"({"trellis selection": 1})",
          R"({"trellis selection": 1, "choices": [{"category": 3}]})",
          R"({"trellis selection": 1, "choices": 3})", "\xff\xfe",
          R"({"trellis selection": 1, "choices": [], "ignored categories": [[]]})"}) {
        error.Clear();
        EXPECT_FALSE(KeptSelection::Read(folder.Write("bad.json", content), error)) << content;
        EXPECT_EQ(error.GetCode(), 60635) << content;
    }
}

TEST(KeptSelectionFile, OnlyTheFileThatWasNamedChanges) {
    const TemporaryFolder folder;
    ZOLGYRError error;
    const std::string neighbour = folder.Write("s.json.new", "mine");
    ASSERT_TRUE(KeptSelection().Write(folder.Path("s.json"), error));
    EXPECT_EQ(std::filesystem::file_size(neighbour), 4U);
    const std::string link = folder.Path("link.json");
    std::filesystem::create_symlink(folder.Path("s.json"), link);
    KeptSelection kept;
    kept.product = "BIKE";
    ASSERT_TRUE(kept.Write(link, error));
    EXPECT_TRUE(std::filesystem::is_symlink(link)) << "a link is followed";
    EXPECT_EQ(KeptSelection::Read(folder.Path("s.json"), error)->product, "BIKE");
}

TEST(KeptSelectionFile, AFileThatCannotBeReplacedStays) {
    const TemporaryFolder folder;
    ZOLGYRError error;
    EXPECT_FALSE(KeptSelection().Write(folder.Path("no/folder/s.json"), error));
    EXPECT_EQ(error.GetCode(), 60631);
}

} // namespace trellis::test
