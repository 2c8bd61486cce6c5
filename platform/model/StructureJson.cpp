#include "model/StructureReaders.h"

#include <nlohmann/json.hpp>

#include <iterator>
#include <string>

namespace trellis {

namespace {

// Hands the parser the text octet by octet and counts the lines that it has taken.
class CountingIterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    CountingIterator(const char* at, int* line) : _at(at), _line(line) {}
    reference operator*() const { return *_at; }
    CountingIterator& operator++() {
        if (*_at++ == '\n')
            ++*_line;
        return *this;
    }
    CountingIterator operator++(int) {
        CountingIterator before = *this;
        ++*this;
        return before;
    }
    friend bool operator==(const CountingIterator& a, const CountingIterator& b) { return a._at == b._at; }
    friend bool operator!=(const CountingIterator& a, const CountingIterator& b) { return a._at != b._at; }

private:
    const char* _at;
    int* _line;
};

// The keys of a part and of a link in this form; a number is taken as its digits.
struct JsonKey {
    const char* key;
    std::string StructureRecord::*member;
};

constexpr JsonKey partKeys[] = {{"id", &StructureRecord::id},
                                {"number", &StructureRecord::number},
                                {"revision", &StructureRecord::revision},
                                {"name", &StructureRecord::name},
                                {"site", &StructureRecord::site}};
constexpr JsonKey linkKeys[] = {{"id", &StructureRecord::linkId},
                                {"name", &StructureRecord::linkName},
                                {"parent", &StructureRecord::parent},
                                {"child", &StructureRecord::child},
                                {"position", &StructureRecord::position}};

// StructureJsonParser: takes the parser's events and keeps where it is:
//   Start -{-> Root -"parts"/"links" [-> List -{-> Record -"attributes" {-> Attributes
// What has no place there is noted once and passed over with all below it.
class StructureJsonParser {
public:
    StructureJsonParser(StructureFile& file, ImportReport& report, const int& line)
        : _file(file), _report(report), _line(line) {}

    bool null() { return Scalar(nullptr); }
    bool boolean(bool) { return Misplaced(); }
    bool number_integer(std::int64_t value) { return Number(std::to_string(value)); }
    bool number_unsigned(std::uint64_t value) { return Number(std::to_string(value)); }
    bool number_float(double, const std::string& digits) { return Number(digits); }
    bool string(std::string& text) { return Scalar(&text); }
    bool binary(std::vector<std::uint8_t>&) { return Misplaced(); }

    bool start_object(std::size_t) {
        if (_skipped > 0)
            ++_skipped;
        else if (_place == Place::Start)
            _place = Place::Root;
        else if (_place == Place::List)
            BeginRecord();
        else if (_place == Place::Record && _record.kind == StructureRecord::Kind::Part &&
                 _key == "attributes")
            _place = Place::Attributes;
        else
            Skip();
        return true;
    }
    bool key(std::string& text) {
        _key = text;
        return true;
    }
    bool end_object() {
        if (_skipped > 0) {
            --_skipped;
        } else if (_place == Place::Attributes) {
            _place = Place::Record;
        } else if (_place == Place::Record) {
            _file.records.push_back(std::move(_record));
            _place = Place::List;
        }
        return true;
    }
    bool start_array(std::size_t) {
        const bool isList = _place == Place::Root && (_key == "parts" || _key == "links");
        if (_skipped > 0) {
            ++_skipped;
        } else if (isList) {
            _place = Place::List;
            _kind = _key == "parts" ? StructureRecord::Kind::Part : StructureRecord::Kind::Link;
        } else {
            Skip();
        }
        return true;
    }
    bool end_array() {
        if (_skipped > 0)
            --_skipped;
        else if (_place == Place::List)
            _place = Place::Root;
        return true;
    }
    bool parse_error(std::size_t, const std::string&, const nlohmann::json::exception& exception) {
        const std::string text = exception.what();
        const std::size_t words = text.find("syntax error");
        NoteProblem(_report, _line, 60230, {words == std::string::npos ? text : text.substr(words)});
        return false;
    }

private:
    enum class Place { Start, Root, List, Record, Attributes };

    void BeginRecord() {
        _record = {};
        _record.line = _line;
        _record.kind = _kind;
        _place = Place::Record;
        _key.clear();
    }
    // Passes over what is opened here.
    void Skip() {
        Misplaced();
        _skipped = 1;
    }
    bool Misplaced() {
        if (_skipped == 0)
            NoteProblem(_report, _line, 60232, {_place == Place::List || _place == Place::Start ? "" : _key});
        return true;
    }
    bool Number(const std::string& digits) {
        if (_place == Place::Attributes || (_place == Place::Record && _key == "position"))
            return Scalar(&digits);
        return Misplaced();
    }
    // A text, a number as text, or nothing.
    bool Scalar(const std::string* text) {
        if (_skipped > 0)
            return true;
        if (_place == Place::Attributes) {
            if (text)
                _record.attributes.emplace_back(_key, *text);
            return true;
        }
        if (_place != Place::Record)
            return Misplaced();
        const bool isPart = _record.kind == StructureRecord::Kind::Part;
        const JsonKey* keys = isPart ? partKeys : linkKeys;
        for (std::size_t i = 0; i < std::size(partKeys); ++i)
            if (_key == keys[i].key) {
                _record.*keys[i].member = text ? *text : std::string();
                return true;
            }
        NoteProblem(_report, _line, 60231, {_key});
        return true;
    }

    static_assert(std::size(partKeys) == std::size(linkKeys));

    StructureFile& _file;
    ImportReport& _report;
    const int& _line;
    Place _place = Place::Start;
    StructureRecord::Kind _kind = StructureRecord::Kind::Part;
    StructureRecord _record;
    std::string _key;
    int _skipped = 0; // depth below the thing passed over
};

} // namespace

StructureFile ReadStructureJson(std::string_view text, ImportReport& report) {
    StructureFile file;
    int line = 1;
    StructureJsonParser parser(file, report, line);
    nlohmann::json::sax_parse(CountingIterator(text.data(), &line),
                              CountingIterator(text.data() + text.size(), &line), &parser);
    if (file.records.empty() && report.problems.empty())
        NoteProblem(report, 0, 60210);
    return file;
}

} // namespace trellis
