#include "model/JsonImport.h"
#include "model/StructureReaders.h"

#include <iterator>
#include <string>

namespace trellis {

namespace {

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
class StructureJsonParser : public JsonImport {
public:
    StructureJsonParser(StructureFile& file, ImportText::Problems& problems)
        : JsonImport(problems), _file(file) {}

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

private:
    enum class Place { Start, Root, List, Record, Attributes };

    void BeginRecord() {
        _record = {};
        _record.line = Line();
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
            Note(60232, {_place == Place::List || _place == Place::Start ? "" : _key});
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
        Note(60231, {_key});
        return true;
    }

    static_assert(std::size(partKeys) == std::size(linkKeys));

    StructureFile& _file;
    Place _place = Place::Start;
    StructureRecord::Kind _kind = StructureRecord::Kind::Part;
    StructureRecord _record;
    std::string _key;
    int _skipped = 0; // depth below the thing passed over
};

} // namespace

StructureFile ReadStructureJson(std::string_view text, ImportText::Problems& problems) {
    StructureFile file;
    StructureJsonParser parser(file, problems);
    // What was read before the text broke off is not judged: its links may name parts that follow.
    if (!ParseJson(text, parser))
        file.records.clear();
    if (file.records.empty() && problems.empty())
        ImportText::Note(problems, 0, 60210);
    return file;
}

} // namespace trellis
