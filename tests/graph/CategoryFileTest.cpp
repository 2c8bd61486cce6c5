#include "graph/CategoryFile.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <fstream>

namespace trellis::test {

namespace {

ZOLListValZOLUnicodeString HiddenIn(const std::string& content) {
    const TemporaryFolder folder;
    const std::string path = folder.Path("x.Categories");
    std::ofstream(path, std::ios::binary) << content;
    return CategoryFile::ReadHidden(path);
}

std::string JoinedHidden(const std::string& content) {
    std::string joined;
    for (const ZOLUnicodeString& name : HiddenIn(content))
        joined += "[" + name.Bytes() + "]";
    return joined;
}

} // namespace

TEST(CategoryFileTest, LinesAreReadCharacterByCharacter) {
    EXPECT_EQ(JoinedHidden("0 Lamp\n1 Bell\n0 Rain cover\n"), "[Lamp][Rain cover]");
    EXPECT_EQ(JoinedHidden("0 Lamp\n0 Bell"), "[Lamp]") << "a last line without a line feed";
    EXPECT_EQ(JoinedHidden("0 0 A\n"), "[0 A]") << "only the first 0 is the mark";
    EXPECT_EQ(JoinedHidden("  0   A  b  \n"), "[A  b  ]") << "blanks count once the name has begun";
    EXPECT_EQ(JoinedHidden("A0 B\n"), "[A B]") << "the mark may stand anywhere";
    EXPECT_EQ(JoinedHidden("0 \n\n0\nLamp\n"), "") << "no name, no mark";
    EXPECT_EQ(HiddenIn(std::string("0 A\0B\n", 6)).Size(), 1);
    for (const char* unreadable : {"/nowhere/x.Categories", "/"})
        EXPECT_EQ(CategoryFile::ReadHidden(unreadable).Size(), 0) << unreadable;
}

RC_GTEST_PROP(CategoryFileTest, WhatIsHiddenStaysHidden, ()) {
    const auto name = rc::gen::map(
        rc::gen::nonEmpty(rc::gen::container<std::string>(rc::gen::element('A', 'b', ' ', '2', '"', '\t'))),
        [](std::string text) { return "N" + text; });
    const auto names = *rc::gen::container<std::vector<std::string>>(name);
    ZOLListValZOLUnicodeString hidden;
    ZOLListValZOLUnicodeString shown;
    for (std::size_t i = 0; i < names.size(); ++i)
        (i % 3 == 0 ? shown : hidden).Append(names[i]);
    const TemporaryFolder folder;
    const std::string path = folder.Path("x.Categories");
    CategoryFile::Write(path, shown, hidden);
    const ZOLListValZOLUnicodeString read = CategoryFile::ReadHidden(path);
    RC_ASSERT(read.Size() == hidden.Size());
    for (int i = 1; i <= read.Size(); ++i)
        RC_ASSERT(read[i] == hidden[i]);
}

TEST(CategoryFileTest, ANameThatWouldMakeALineOfItsOwnIsNotWritten) {
    const TemporaryFolder folder;
    const std::string path = folder.Path("x.Categories");
    CategoryFile::Write(path, {}, {"Lamp\n0 Bell", "Rack"});
    EXPECT_EQ(CategoryFile::ReadHidden(path).Size(), 1);
    CategoryFile::Write(folder.Path("no/such/folder"), {}, {"Lamp"});
    CategoryFile::Write("", {}, {"Lamp"});
}

} // namespace trellis::test
