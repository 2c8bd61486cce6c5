#include "cli/DriverVerbs.h"

#include "toolkit/ZOLDialog.h"
#include "toolkit/ZOLGraphViewer.h"
#include "toolkit/ZOLUserDriver.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace trellis {

namespace {

using Driver = ZOLUserDriver;

ZOLDialog* Dialog(const std::string& path) {
    ZOLDialog* top = Driver::Top();
    if (!top)
        throw ScriptRefusal("no dialog is open");
    return path == "." ? top : Driver::Find(nullptr, path);
}

int Number(const std::string& word) {
    int number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size())
        throw ScriptRefusal('"' + word + "\" is no number");
    return number;
}

std::vector<int> Numbers(Words::const_iterator from, Words::const_iterator to) {
    std::vector<int> numbers;
    for (; from != to; ++from)
        numbers.push_back(Number(*from));
    return numbers;
}

std::vector<ZOLUnicodeString> Texts(Words::const_iterator from, Words::const_iterator to) {
    return {from, to};
}

bool OnOff(const std::string& word) {
    if (word != "on" && word != "off")
        throw ScriptRefusal('"' + word + "\" is neither on nor off");
    return word == "on";
}

struct NamedKey {
    const char* name;
    ZOLUserKey key;
};

constexpr NamedKey keys[] = {
    {"Return", ZOLUserKey::Return},
    {"Escape", ZOLUserKey::Escape},
    {"Space", ZOLUserKey::Space},
    {"Backspace", ZOLUserKey::Backspace},
    {"Delete", ZOLUserKey::Delete},
    {"Up", ZOLUserKey::Up},
    {"Down", ZOLUserKey::Down},
    {"Left", ZOLUserKey::Left},
    {"Right", ZOLUserKey::Right},
    {"Home", ZOLUserKey::Home},
    {"End", ZOLUserKey::End},
    {"PageUp", ZOLUserKey::PageUp},
    {"PageDown", ZOLUserKey::PageDown},
    {"Tab", ZOLUserKey::Tab},
    {"F1", ZOLUserKey::F1},
    {"Menu", ZOLUserKey::Menu},
    {"Plus", ZOLUserKey::Plus},
    {"Minus", ZOLUserKey::Minus},
    {"Shift+Space", ZOLUserKey::ShiftSpace},
    {"Ctrl+Space", ZOLUserKey::CtrlSpace},
    {"Shift+Up", ZOLUserKey::ShiftUp},
    {"Shift+Down", ZOLUserKey::ShiftDown},
};

ZOLUserKey Key(const std::string& word) {
    const auto* found = std::find_if(std::begin(keys), std::end(keys),
                                     [&word](const NamedKey& key) { return key.name == word; });
    if (found == std::end(keys))
        throw ScriptRefusal('"' + word + "\" is no key");
    return found->key;
}

ZOLGraphViewer* Graph(const std::string& path) {
    auto* graph = dynamic_cast<ZOLGraphViewer*>(Dialog(path));
    if (!graph)
        throw ScriptRefusal(path + " is no graph");
    return graph;
}

// The node that the words behind the path name; no words stand for the background.
ZOLGraphNode* NodeOf(const Words& words) {
    if (words.size() == 1)
        return nullptr;
    ZOLGraphNode* node = Driver::Node(Graph(words[0]), Texts(words.begin() + 1, words.end()));
    if (!node)
        throw ScriptRefusal("no such node is shown");
    return node;
}

void PrintMenu(const std::vector<Driver::MenuLine>& lines, std::ostream& output) {
    for (const Driver::MenuLine& line : lines)
        output << std::string(static_cast<std::size_t>(line.level) * 2, ' ') << line.name.View() << "  "
               << line.text.Bytes() << (line.isSensitive ? "" : "  (greyed)") << '\n';
}

} // namespace

std::vector<ScriptVerb> DriverVerbs() {
    constexpr std::size_t many = ScriptVerb::Many;
    return {
        {"describe", "[PATH]", 0, 1,
         [](const Words& w, std::ostream& out) { out << Driver::Describe(Dialog(w.empty() ? "." : w[0])); }},
        {"press", "PATH", 1, 1, [](const Words& w, std::ostream&) { Driver::Press(Dialog(w[0])); }},
        {"menu", "PATH ITEM", 2, 2, [](const Words& w, std::ostream&) { Driver::Menu(Dialog(w[0]), w[1]); }},
        {"open-menu", "PATH", 1, 1,
         [](const Words& w, std::ostream& out) { PrintMenu(Driver::OpenMenu(Dialog(w[0])), out); }},
        {"toggle", "PATH on|off", 2, 2,
         [](const Words& w, std::ostream&) { Driver::Toggle(Dialog(w[0]), OnOff(w[1])); }},
        {"choose", "PATH TEXT", 2, 2,
         [](const Words& w, std::ostream&) { Driver::Choose(Dialog(w[0]), w[1]); }},
        {"page", "PATH NAME", 2, 2,
         [](const Words& w, std::ostream&) { Driver::ShowPage(Dialog(w[0]), w[1]); }},
        {"type", "PATH TEXT", 2, 2, [](const Words& w, std::ostream&) { Driver::Type(Dialog(w[0]), w[1]); }},
        {"enter", "PATH", 1, 1, [](const Words& w, std::ostream&) { Driver::Enter(Dialog(w[0])); }},
        {"select-text", "PATH FROM TO", 3, 3,
         [](const Words& w, std::ostream&) { Driver::SelectText(Dialog(w[0]), Number(w[1]), Number(w[2])); }},
        {"key", "PATH KEY", 2, 2,
         [](const Words& w, std::ostream&) { Driver::Key(Dialog(w[0]), Key(w[1])); }},
        {"rows", "PATH ROW...", 1, many,
         [](const Words& w, std::ostream&) {
             Driver::Select(Dialog(w[0]), Numbers(w.begin() + 1, w.end()));
         }},
        {"lines", "PATH TEXT...", 1, many,
         [](const Words& w, std::ostream&) {
             Driver::SelectLines(Dialog(w[0]), Texts(w.begin() + 1, w.end()));
         }},
        {"activate", "PATH ROW", 2, 2,
         [](const Words& w, std::ostream&) { Driver::Activate(Dialog(w[0]), Number(w[1])); }},
        {"click", "PATH NODE...", 1, many,
         [](const Words& w, std::ostream&) { Driver::Click(Graph(w[0]), NodeOf(w)); }},
        {"extend-click", "PATH NODE...", 2, many,
         [](const Words& w, std::ostream&) { Driver::Click(Graph(w[0]), NodeOf(w), true); }},
        {"context-click", "PATH NODE...", 1, many,
         [](const Words& w, std::ostream&) { Driver::ContextClick(Graph(w[0]), NodeOf(w)); }},
        {"point", "PATH NODE...", 1, many,
         [](const Words& w, std::ostream&) { Driver::PointAt(Graph(w[0]), NodeOf(w)); }},
        {"ok", "", 0, 0, [](const Words&, std::ostream&) { Driver::Ok(Dialog(".")); }},
        {"apply", "", 0, 0, [](const Words&, std::ostream&) { Driver::Apply(Dialog(".")); }},
        {"cancel", "", 0, 0, [](const Words&, std::ostream&) { Driver::Cancel(Dialog(".")); }},
        {"help", "", 0, 0, [](const Words&, std::ostream&) { Driver::Help(Dialog(".")); }},
        {"close", "", 0, 0, [](const Words&, std::ostream&) { Driver::CloseWindow(Dialog(".")); }},
        {"answer", "BUTTON...", 1, many,
         [](const Words& w, std::ostream&) { Driver::Answer(Numbers(w.begin(), w.end())); }},
    };
}

} // namespace trellis
