#include "model/ZOLDMTools.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <optional>

namespace trellis::test {

namespace {

// The variables of the environment as they were, after a test.
class ZOLDMToolsTest : public testing::Test {
protected:
    ~ZOLDMToolsTest() override {
        Set("XDG_DATA_HOME", _data);
        Set("HOME", _home);
    }
    static std::optional<std::string> Get(const char* name) {
        const char* value = std::getenv(name);
        return value ? std::optional<std::string>(value) : std::nullopt;
    }
    static void Set(const char* name, const std::optional<std::string>& value) {
        value ? setenv(name, value->c_str(), 1) : unsetenv(name);
    }
    // The folder for small files when the variables are these.
    static std::string Folder(const std::string& data, const std::string& home) {
        Set("XDG_DATA_HOME", data);
        Set("HOME", home);
        return ZOLDMTools::ZOLDMDefaultDirectory().Bytes();
    }

    const std::optional<std::string> _data = Get("XDG_DATA_HOME");
    const std::optional<std::string> _home = Get("HOME");
    const TemporaryFolder _folder;
};

TEST_F(ZOLDMToolsTest, TheFolderForSmallFilesIsMadeInTheUsersDataFolder) {
    const std::string home = _folder.Path("home");
    EXPECT_EQ(Folder(_folder.Path("data"), home), _folder.Path("data/trellis/"));
    EXPECT_TRUE(std::filesystem::is_directory(_folder.Path("data/trellis")));
    const std::string below = _folder.Path("home/.local/share/trellis/");
    EXPECT_EQ(Folder("", home), below);
    EXPECT_EQ(Folder("relative", home), below);
    EXPECT_TRUE(std::filesystem::is_directory(below));
}

TEST_F(ZOLDMToolsTest, WithoutAFolderTheAnswerIsEmpty) {
    EXPECT_EQ(Folder("", ""), "");
    EXPECT_EQ(Folder("", "relative"), "");
    _folder.Write("data", "a file, not a folder");
    EXPECT_EQ(Folder(_folder.Path("data"), ""), "");
}

TEST_F(ZOLDMToolsTest, StringsCompareAsTheySort) {
    ZOLListValZOLUnicodeString texts = {"b", "", "\u00e9", "B", "ab", "b"};
    texts.QuickSort(&ZOLDMTools::CompareStrings);
    std::string sorted;
    for (const ZOLUnicodeString& text : texts)
        sorted += text.Bytes() + ";";
    EXPECT_EQ(sorted, ";B;ab;b;b;\u00e9;");
}

} // namespace

} // namespace trellis::test
