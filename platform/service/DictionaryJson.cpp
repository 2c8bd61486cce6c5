#include "service/DictionaryRecord.h"

#include "model/JsonImport.h"

#include <algorithm>

namespace trellis {

namespace {

// DictionaryJsonParser: takes the parser's events and keeps where it is:
//   Start -{-> Root -"categories" [-> Categories -{-> Category -"options" [-> Options -{-> Option
// What has no place there is noted once and passed over with all below it.
class DictionaryJsonParser : public JsonImport {
public:
    explicit DictionaryJsonParser(DictionaryFile& file) : JsonImport(file.problems), _file(file) {
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
            Note(MemberOf(_key) ? 60232 : 60231, {_key});
        return true;
    }
    void BeginRecord() {
        DictionaryRecord record;
        record.line = Line();
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
    Place _place = Start;
    int _skipped = 0; // depth inside what is passed over
    std::string _key;
    std::size_t _category = 0;                                 // position of the category at hand
    std::vector<std::pair<std::size_t, std::size_t>> _parents; // of each option, both as positions
};

} // namespace

DictionaryFile ReadDictionaryJson(std::string_view text) {
    DictionaryFile file;
    DictionaryJsonParser parser(file);
    const bool isJson = ParseJson(text, parser);
    parser.NameParents();
    // What was read before the text broke off is not judged.
    if (!isJson)
        file.records.clear();
    if (file.records.empty() && file.problems.empty())
        file.Note(0, 60210);
    return file;
}

} // namespace trellis
