// Walks the texts that come with the system: what a panel reads must be there once, and read well.

#include "toolkit/ZOLGYRResource.h"
#include "values/ZOLGYRError.h"

#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>

namespace {

namespace fs = std::filesystem;

const fs::path English = fs::path(TRELLIS_SOURCE_DIR) / "resources/en";

// These are lines "key text", read as message catalogues.
const std::set<std::string> Catalogues{"messages", "RuleKeyWords", "RulePhrases"};

std::vector<std::string> Lines(const fs::path& file) {
    std::ifstream in(file);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

std::vector<std::string> ResourceFiles() {
    std::vector<std::string> files;
    for (const auto& entry : fs::directory_iterator(English))
        if (entry.is_regular_file() && !Catalogues.contains(entry.path().filename()))
            files.push_back(entry.path().filename());
    return files;
}

// What a text of a resource file means: blanks in front go, "\ ", "\n", "\\" and octal numbers stand for one
// character.
std::string Meant(const std::string& written) {
    std::string meant;
    for (std::size_t i = std::min(written.find_first_not_of(" \t"), written.size()); i < written.size();
         ++i) {
        if (written[i] != '\\' || i + 1 == written.size()) {
            meant += written[i];
        } else if (std::isdigit(written[i + 1])) {
            meant += static_cast<char>(std::stoi(written.substr(i + 1, 3), nullptr, 8));
            i += 3;
        } else {
            ++i;
            meant += written[i] == 'n' ? '\n' : written[i];
        }
    }
    return meant;
}

std::map<int, std::string> Messages() {
    std::map<int, std::string> messages;
    for (const std::string& line : Lines(English / "messages")) {
        if (line.empty() || line.front() == '#')
            continue;
        const auto [number, text] =
            std::pair(std::stoi(line), line.substr(std::min(line.find(' '), line.size() - 1) + 1));
        EXPECT_TRUE(messages.emplace(number, text).second) << "twice: " << line;
    }
    return messages;
}

std::string Rendered(int code, int parameters) {
    ZOLGYRError error;
    error.Set(code, 0);
    for (int i = 1; i <= parameters; ++i)
        error.Add("<p" + std::to_string(i) + ">");
    ZOLUnicodeString text;
    error.GetLongMsg(text);
    return text.Bytes();
}

// How many parameters a text has places for.
int Places(const std::string& written) {
    int highest = 0;
    for (std::size_t i = 0; i + 1 < written.size(); ++i)
        if (written[i] == '%' && std::isdigit(static_cast<unsigned char>(written[i + 1])))
            highest = std::max(highest, written[i + 1] - '0');
    return highest;
}

// The platform gives its own numbers always the same parameters; all others come with fewer or more.
constexpr int FirstOfPlatform = 60000;

// What a reader would stumble over.
std::string Blemish(const std::string& text) {
    static const std::regex bad(R"(  | [.,:;?)]|\(\)|""|[{}]|%[1-9]|::|\. \.|^\s|\s$)");
    std::smatch found;
    if (std::regex_search(text, found, bad))
        return "\"" + found.str() + "\"";
    if (std::count(text.begin(), text.end(), '"') % 2 != 0)
        return "one quote alone";
    if (std::count(text.begin(), text.end(), '(') != std::count(text.begin(), text.end(), ')'))
        return "brackets";
    if (!std::isupper(static_cast<unsigned char>(text.front())) && text.front() != '"' && text.front() != '<')
        return "no capital";
    return {};
}

} // namespace

TEST(ResourceTextsTest, EveryLineOfAResourceFileIsReadUnderItsKeyOnceAndWithItsBlanks) {
    const std::regex shape(R"(([A-Za-z0-9_.-]+):(.*))");
    ASSERT_FALSE(ResourceFiles().empty());
    for (const std::string& file : ResourceFiles()) {
        const ZOLGYRResource resource(file);
        std::set<std::string> keys;
        for (const std::string& line : Lines(English / file)) {
            if (line.empty() || line.front() == '!')
                continue;
            std::smatch parts;
            ASSERT_TRUE(std::regex_match(line, parts, shape)) << file << ": " << line;
            EXPECT_TRUE(keys.insert(parts[1]).second) << file << " twice: " << line;
            EXPECT_EQ(resource.GetValueOr(parts[1].str(), "(missing)").Bytes(), Meant(parts[2]))
                << file << ": " << line;
        }
        EXPECT_FALSE(keys.empty()) << file;
    }
}

TEST(ResourceTextsTest, TheTitlesOfAnInclusiveAndAnExclusiveEndDiffer) {
    // The panels tell the state of such a button by its title.
    for (const char* file : {"ZOLQRDDlgDate", "ZOLQRDDlgRange"})
        for (const char* end : {"BegDate", "EndDate", "BotRange", "TopRange"}) {
            const ZOLGYRResource resource(file);
            ZOLUnicodeString inclusive;
            ZOLUnicodeString exclusive;
            if (resource.GetValue(std::string(end) + "InclButton.Title", inclusive)) {
                EXPECT_EQ(resource.GetValue(std::string(end) + "ExclButton.Title", exclusive), 1);
                EXPECT_NE(inclusive, exclusive) << file << ' ' << end;
            }
        }
}

TEST(ResourceTextsTest, EveryMessageReadsWellWithAnyCountOfParameters) {
    const std::map<int, std::string> messages = Messages();
    ASSERT_GT(messages.size(), 100u);
    for (const auto& [code, written] : messages) {
        for (int count = code < FirstOfPlatform ? 0 : Places(written); count <= std::max(5, Places(written));
             ++count) {
            const std::string text = Rendered(code, count);
            EXPECT_EQ(Blemish(text), "") << code << " with " << count << ": " << text;
            for (int i = 1; i <= count; ++i)
                EXPECT_NE(text.find("<p" + std::to_string(i) + ">"), std::string::npos)
                    << code << ": " << text;
        }
        if (code >= FirstOfPlatform)
            continue;
        const char last = Rendered(code, 0).back();
        EXPECT_TRUE(last == '.' || last == '?') << code << ": " << written;
    }
}
