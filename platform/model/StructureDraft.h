#pragma once

#include "model/ImportText.h"
#include "model/StructureRecord.h"

#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

namespace trellis {

class Workspace;

// A part as the file wants it. An empty text says nothing: it leaves what is stored.
struct DraftPart {
    int line = 0;
    std::string key; // by which links of the file name it; the number of a new part that is given none
    std::string uuid;
    std::string number;
    std::string revision;
    std::string name;
    std::string site;
    std::vector<std::pair<std::string, std::string>> attributes;
    bool isReference = false; // only named by links: it must be in the database, and stays as it is there
};

// A link as the file wants it; parent and child are positions in the list of parts.
struct DraftLink {
    int line = 0;
    std::string uuid;
    std::string clientIdentifier;
    std::string name;
    std::size_t parent = 0;
    std::size_t child = 0;
    std::int64_t position = 0;
};

// StructureDraft: what a file says, checked as far as that needs no database: texts, keys, positions, names told
// twice. Every fault is noted with its line.
class StructureDraft {
public:
    StructureDraft(const StructureFile& file, ImportText::Problems& problems);

    const std::vector<DraftPart>& Parts() const { return _parts; }
    const std::vector<DraftLink>& Links() const { return _links; }

private:
    bool CheckTexts(const StructureRecord& record);
    bool CheckText(int line, const std::string& word, const std::string& text, int longest,
                   bool mayHoldLines);
    void AddPart(const StructureRecord& record);
    void AddLink(const StructureRecord& record);
    // Position of a part that a link names; made from the link where the file may do so.
    std::size_t PartOf(int line, const std::string& key, const std::string& name);
    void TellName(DraftPart& part, int line, const std::string& name);
    std::size_t NewPart(DraftPart part);
    void Note(int line, int number, const std::vector<std::string>& parameters = {}) {
        ImportText::Note(_problems, line, number, parameters);
    }

    ImportText::Problems& _problems;
    bool _makesParts;
    std::vector<DraftPart> _parts;
    std::vector<DraftLink> _links;
    std::unordered_map<std::string, std::size_t> _partByKey;
    std::unordered_map<std::string, std::size_t> _partByUuid;
    std::unordered_map<std::string, int> _lineOfLink;                   // by identifier
    std::unordered_map<std::size_t, std::int64_t> _linksBelow;          // by parent
    std::map<std::pair<std::size_t, std::size_t>, int> _namelessByEnds; // links without id between two parts
};

} // namespace trellis
