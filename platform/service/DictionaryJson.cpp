#include "service/DictionaryRecord.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <iterator>

namespace trellis {

namespace {

// Hands the parser the text octet by octet and counts the lines that it has taken.
class LineCounter {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    LineCounter(const char* at, int* line) : _at(at), _line(line) {}
    reference operator*() const { return *_at; }
    LineCounter& operator++() {
        if (*_at++ == '\n')
            ++*_line;
        return *this;
    }
    LineCounter operator++(int) {
        LineCounter before = *this;
        ++*this;
        return before;
    }
    friend bool operator==(const LineCounter& a, const LineCounter& b) { return a._at == b._at; }
    friend bool operator!=(const LineCounter& a, const LineCounter& b) { return a._at != b._at; }

private:
    const char* _at;
    int* _line;
};

// DictionaryJsonParser: takes the parser's events and keeps where it is:
//   Start -{-> Root -"categories" [-> Categories -{-> Category -"options" [-> Options -{-> Option
// What has no place there is noted once and passed over with all below it.
class DictionaryJsonParser {
public:
    DictionaryJsonParser(DictionaryFile& file, const int& line) : _file(file), _line(line) {
        _file.tellsDefaults = true;
    }

    bool null() { return Misplaced(); }
    bool boolean(bool value) {
        const char* word = value ? "yes" : "no";
        return _place == Option ? Set(word, {"default"}) : Set(word, {"mandatory", "exclusive"});
    }
    bool number_integer(std::int64_t) { return Misplaced(); }
    bool number_unsigned(std::uint64_t) { return Misplaced(); }
    bool number_float(double, const std::string&) { return Misplaced(); }
    bool binary(std::vector<std::uint8_t>&) { return Misplaced(); }
    bool string(std::string& text) { return Set(text, {"name", "description"}); }
    bool key(std::string& text) {
        if (_skipped == 0)
            _key = text;
        return true;
    }
    bool start_object(std::size_t) {
        if (_skipped > 0 || (_place != Start && _place != Categories && _place != Options))
            return Skip();
        if (_place != Start)
            BeginRecord();
        return Enter();
    }
    bool start_array(std::size_t) {
        const bool isList =
            (_place == Root && _key == "categories") || (_place == Category && _key == "options");
        return isList && _skipped == 0 ? Enter() : Skip();
    }
    bool end_object() { return Leave(); }
    bool end_array() { return Leave(); }
    bool parse_error(std::size_t, const std::string&, const nlohmann::json::exception& failure) {
        _file.Note(_line, 60230, {failure.what()});
        return false;
    }

    // A category may tell its name after its options.
    void NameParents() {
        for (const auto& [option, category] : _parents)
            _file.records[option].category = _file.records[category].name;
    }

private:
    // In the order of depth: the place inside is the next.
    enum Place { Start, Root, Categories, Category, Options, Option };

    bool Enter() {
        _place = static_cast<Place>(_place + 1);
        return true;
    }
    bool Leave() {
        if (_skipped > 0)
            --_skipped;
        else
            _place = static_cast<Place>(_place - 1);
        return true;
    }
    bool Skip() {
        Misplaced();
        ++_skipped;
        return true;
    }
    // Inside what is passed over, the beginning was noted already.
    bool Misplaced() {
        if (_skipped == 0)
            _file.Note(_line, MemberOf(_key) ? 60232 : 60231, {_key});
        return true;
    }
    void BeginRecord() {
        DictionaryRecord record;
        record.line = _line;
        if (_place == Options) {
            record.kind = DictionaryRecord::Kind::Option;
            _parents.emplace_back(_file.records.size(), _category);
        } else {
            _category = _file.records.size();
        }
        _file.records.push_back(std::move(record));
    }
    bool Set(const std::string& text, std::initializer_list<const char*> keys) {
        const bool mayBe =
            (_place == Category || _place == Option) && std::ranges::find(keys, _key) != keys.end();
        if (!mayBe || _skipped > 0)
            return Misplaced();
        DictionaryRecord& record = _place == Option ? _file.records.back() : _file.records[_category];
        record.*MemberOf(_key) = text;
        return true;
    }
    static std::string DictionaryRecord::*MemberOf(const std::string& key) {
        for (const DictionaryField& field : dictionaryFields)
            if (key == field.word)
                return field.member;
        return nullptr;
    }

    DictionaryFile& _file;
    const int& _line;
    Place _place = Start;
    int _skipped = 0; // depth inside what is passed over
    std::string _key;
    std::size_t _category = 0;                                 // position of the category at hand
    std::vector<std::pair<std::size_t, std::size_t>> _parents; // of each option, both as positions
};

} // namespace

DictionaryFile ReadDictionaryJson(std::string_view text) {
    DictionaryFile file;
    int line = 1;
    DictionaryJsonParser parser(file, line);
    const bool isJson = nlohmann::json::sax_parse(LineCounter(text.data(), &line),
                                                  LineCounter(text.data() + text.size(), &line), &parser);
    parser.NameParents();
    // What was read before the text broke off is not judged.
    if (!isJson)
        file.records.clear();
    if (file.records.empty() && file.problems.empty())
        file.Note(0, 60210);
    return file;
}

} // namespace trellis
