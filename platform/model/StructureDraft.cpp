#include "model/StructureDraft.h"

#include "model/ObjectIdentifier.h"

#include <charconv>
#include <limits>
#include <set>

namespace trellis {

namespace {

std::string KeyOf(const StructureRecord& record) {
    if (!record.id.empty())
        return record.id;
    return record.revision.empty() ? record.number : record.number + "/" + record.revision;
}

// A key of 50 hexadecimal digits is an identifier itself.
std::string PartIdentifier(const std::string& key) {
    const ObjectIdentifier given(key);
    return given.IsEmpty() ? ObjectIdentifier::Derived("part", key).Text() : given.Text();
}

bool HoldsControls(const std::string& text, bool mayHoldLines) {
    for (const char character : text) {
        const bool isLine = character == '\n' || character == '\r' || character == '\t';
        if ((static_cast<unsigned char>(character) < 0x20 || character == 0x7f) && !(isLine && mayHoldLines))
            return true;
    }
    return false;
}

bool ReadPosition(const std::string& text, std::int64_t& position) {
    const char* end = text.data() + text.size();
    const auto [stop, failure] = std::from_chars(text.data(), end, position);
    return failure == std::errc() && stop == end && position >= 0 &&
           position <= std::numeric_limits<std::int32_t>::max();
}

} // namespace

StructureDraft::StructureDraft(const StructureFile& file, ImportText::Problems& problems)
    : _problems(problems), _makesParts(file.makesParts) {
    using Kind = StructureRecord::Kind;
    for (const StructureRecord& record : file.records)
        if (record.kind == Kind::Part && CheckTexts(record))
            AddPart(record);
    for (const StructureRecord& record : file.records)
        if (record.kind == Kind::Link && CheckTexts(record))
            AddLink(record);
}

bool StructureDraft::CheckTexts(const StructureRecord& record) {
    bool good = true;
    for (const StructureField& field : structureFields)
        good &= CheckText(record.line, field.word, record.*field.member, field.longest, false);
    std::set<std::string> names;
    for (const auto& [name, value] : record.attributes) {
        good &= CheckText(record.line, "attribute", name, longestId, false);
        good &= CheckText(record.line, name, value, longestAttribute, true);
        if (!names.insert(name).second) {
            Note(record.line, 60234, {name});
            good = false;
        }
    }
    return good;
}

bool StructureDraft::CheckText(int line, const std::string& word, const std::string& text, int longest,
                               bool mayHoldLines) {
    if (text.size() > static_cast<std::size_t>(longest) &&
        ZOLUnicodeString(text).GetLengthInChar() > longest) {
        Note(line, 60223, {word, std::to_string(longest)});
        return false;
    }
    if (!HoldsControls(text, mayHoldLines))
        return true;
    Note(line, 60224, {word});
    return false;
}

std::size_t StructureDraft::NewPart(DraftPart part) {
    part.uuid = PartIdentifier(part.key);
    _partByKey[part.key] = _parts.size();
    _partByUuid[part.uuid] = _parts.size();
    _parts.push_back(std::move(part));
    return _parts.size() - 1;
}

void StructureDraft::AddPart(const StructureRecord& record) {
    DraftPart part;
    part.line = record.line;
    part.key = KeyOf(record);
    if (part.key.empty())
        return Note(record.line, 60221);
    if (const auto known = _partByUuid.find(PartIdentifier(part.key)); known != _partByUuid.end())
        return Note(record.line, 60225, {part.key, std::to_string(_parts[known->second].line)});
    part.number = record.number;
    part.revision = record.revision;
    part.name = record.name;
    part.site = record.site;
    part.attributes = record.attributes;
    NewPart(std::move(part));
}

std::size_t StructureDraft::PartOf(int line, const std::string& key, const std::string& name) {
    std::size_t position = 0;
    if (const auto known = _partByKey.find(key); known != _partByKey.end()) {
        position = known->second;
    } else {
        DraftPart part;
        part.line = line;
        part.key = key;
        part.isReference = !_makesParts;
        position = NewPart(std::move(part));
    }
    if (_makesParts && !name.empty())
        TellName(_parts[position], line, name);
    return position;
}

// In a table of links a part is named wherever it stands, and has one name.
void StructureDraft::TellName(DraftPart& part, int line, const std::string& name) {
    if (part.name.empty()) {
        part.name = name;
        part.line = line;
    } else if (part.name != name) {
        Note(line, 60233, {name, part.name, std::to_string(part.line)});
    }
}

void StructureDraft::AddLink(const StructureRecord& record) {
    for (const auto& [word, text] : {std::pair("parent", &record.parent), std::pair("child", &record.child)})
        if (text->empty())
            return Note(record.line, 60222, {word});
    DraftLink link;
    link.line = record.line;
    link.name = record.linkName;
    link.parent = PartOf(record.line, record.parent, record.parentName);
    link.child = PartOf(record.line, record.child, record.childName);
    link.position = ++_linksBelow[link.parent];
    if (!record.position.empty() && !ReadPosition(record.position, link.position))
        return Note(record.line, 60229, {record.position});
    link.clientIdentifier = record.linkId;
    if (link.clientIdentifier.empty())
        link.clientIdentifier =
            record.child + "#" + std::to_string(++_namelessByEnds[{link.parent, link.child}]);
    link.uuid = ObjectIdentifier::Derived("link", _parts[link.parent].uuid + link.clientIdentifier).Text();
    if (const auto [first, isNew] = _lineOfLink.try_emplace(link.uuid, record.line); !isNew)
        return Note(record.line, 60226,
                    {link.clientIdentifier, record.parent, std::to_string(first->second)});
    _links.push_back(std::move(link));
}

} // namespace trellis
