#include "widgets/ProductHistoryFile.h"

#include "model/ZOLDMInstance.h"
#include "support/TemporaryFolder.h"
#include "widgets/KeptFile.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <sys/resource.h>

namespace trellis::test {

namespace {

ProductHistory Writable(ProductHistory entries) {
    std::erase_if(entries, [](const ProductHistoryEntry& entry) { return !entry.IsWritable(); });
    return entries;
}

// Texts in which the characters that mean something to the file are frequent.
rc::Gen<std::string> FileText() {
    return rc::gen::container<std::string>(
        rc::gen::weightedOneOf<char>({{3, rc::gen::element(' ', '\n', '[', ']', '0', '1', '\0', '\xC3')},
                                      {1, rc::gen::arbitrary<char>()}}));
}

// The soft limit of what a process may write into one file.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &_before);
        const rlimit limit = {bytes, _before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &_before);
        std::signal(SIGXFSZ, SIG_DFL);
    }

private:
    rlimit _before = {};
};

} // namespace

RC_GTEST_PROP(ProductHistoryFileTest, EveryEntryThatCanBeWrittenIsReadAsItWas, ()) {
    ProductHistory entries;
    for (int i = *rc::gen::inRange(0, 6); i > 0; --i)
        entries.push_back({*FileText(), *FileText(), *FileText()});
    RC_ASSERT(ProductHistoryFile::Parse(ProductHistoryFile::Format(entries)) == Writable(entries));
}

RC_GTEST_PROP(ProductHistoryFileTest, AnyBytesAreReadAndWhatWasReadSurvives, ()) {
    const ProductHistory entries = ProductHistoryFile::Parse(*FileText());
    for (const ProductHistoryEntry& entry : entries)
        RC_ASSERT(!entry.leadingString.IsEmpty() && !entry.xcoid.IsEmpty());
    RC_ASSERT(ProductHistoryFile::Parse(ProductHistoryFile::Format(entries)) == Writable(entries));
}

TEST(ProductHistoryFileTest, ALineCountsOnlyWithThreeItemsAndItsLineFeed) {
    const std::string longItem(100'000, 'x');
    const struct {
        std::string text;
        ProductHistory entries;
    } cases[] = {
        {"[OP] ab 12\n[01] ab 7\n", {{"OP", "ab", "12"}, {"01", "ab", "7"}}},
        {"  [OP]   ab  12   \n", {{"OP", "ab", "12"}}},
        {"[OP] ab\n\n[CH] ab 12\n", {{"CH", "ab", "12"}}},
        {"[OP] ab 12 more\n", {{"OP", "ab", "12more"}}}, // no fourth item: what follows joins the third
        {"[OP] ab 12\n[01] ab 7", {{"OP", "ab", "12"}}},
        {"xOPx ab 12\nx ab 12\n", {{"OP", "ab", "12"}, {"", "ab", "12"}}},
        {"[OP] " + longItem + " 1\n", {{"OP", longItem, "1"}}},
        {"", {}},
    };
    for (const auto& [text, entries] : cases)
        EXPECT_TRUE(ProductHistoryFile::Parse(text) == entries) << text.substr(0, 40);
}

TEST(ProductHistoryFileTest, AKeyIsAPlaceOnlyInTheFormInWhichPlacesAreWritten) {
    for (const char* key : {"01", "10", "12", "100"})
        EXPECT_TRUE((ProductHistoryEntry{key, "a", "1"}.IsNumbered())) << key;
    for (const char* key : {"", "1", "007", "0", "00", "-1", "99999999999", "OP"})
        EXPECT_FALSE((ProductHistoryEntry{key, "a", "1"}.IsNumbered())) << key;
}

TEST(ProductHistoryFileTest, AWriteThatFailsLosesNothing) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("file", "[OP] ab 12\n");
    {
        const FileSizeLimit full(20);
        EXPECT_FALSE(KeptFile::Replace(path, std::string(1000, 'x')));
    }
    EXPECT_EQ(TemporaryFolder::Read(path), "[OP] ab 12\n");
    EXPECT_FALSE(KeptFile::Replace(folder.Path("no/such/folder"), "x"));
    EXPECT_FALSE(KeptFile::Replace(folder.Path(), "x"));
    const std::filesystem::directory_iterator files(folder.Path());
    EXPECT_EQ(std::distance(begin(files), end(files)), 1) << "a draft was left";
}

TEST(ProductHistoryFileTest, AFileIsNamedByAProductInsideTheUsersFolderOrNotAtAll) {
    const TemporaryFolder folder;
    setenv("XDG_DATA_HOME", folder.Path("data").c_str(), 1);
    const auto path = [](const std::string& database, const std::string& part) {
        return KeptFile::PathOf(ZOLDMInstance("", database, "PART_LIST", part), ".Products");
    };
    EXPECT_EQ(path("ab", "12"), folder.Path("data/trellis/ab.12.Products"));
    EXPECT_EQ(path("", "12"), "");
    EXPECT_EQ(path("ab", ""), "");
    EXPECT_EQ(path("../ab", "12"), "");
    EXPECT_EQ(path("ab", "1/../../2"), "");
    EXPECT_EQ(path(std::string("a\0b", 3), "12"), "");
}

} // namespace trellis::test
