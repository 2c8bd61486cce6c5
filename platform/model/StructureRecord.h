#pragma once

#include <string>
#include <utility>
#include <vector>

namespace trellis {

// One row of a structure file, a part or a link, as texts; what the row does not give is empty.
struct StructureRecord {
    enum class Kind { Part, Link };

    int line = 0;
    Kind kind = Kind::Link;

    std::string id; // of a part
    std::string number;
    std::string revision;
    std::string name;
    std::string site;
    std::vector<std::pair<std::string, std::string>> attributes;

    std::string linkId;
    std::string linkName;
    std::string parent;
    std::string parentName;
    std::string child;
    std::string childName;
    std::string position;
};

// A text of the record and the longest it may be, in characters. The word is that of columns and messages.
struct StructureField {
    const char* word;
    std::string StructureRecord::*member;
    int longest;
};

inline constexpr int longestId = 120;
inline constexpr int longestName = 255;
inline constexpr int longestAttribute = 4000;

inline constexpr StructureField structureFields[] = {
    {"id", &StructureRecord::id, longestId},
    {"number", &StructureRecord::number, longestId},
    {"revision", &StructureRecord::revision, longestId},
    {"name", &StructureRecord::name, longestName},
    {"site", &StructureRecord::site, longestId},
    {"link_id", &StructureRecord::linkId, longestId},
    {"link_name", &StructureRecord::linkName, longestName},
    {"parent", &StructureRecord::parent, longestId},
    {"parent_name", &StructureRecord::parentName, longestName},
    {"child", &StructureRecord::child, longestId},
    {"child_name", &StructureRecord::childName, longestName},
    {"position", &StructureRecord::position, longestId}};

// What a reader makes of a file.
struct StructureFile {
    std::vector<StructureRecord> records;
    bool makesParts = false; // parts that only links name are made from these
};

} // namespace trellis
