#include "model/StructureWriter.h"

#include "model/StructureCycles.h"
#include "store/RowTable.h"
#include "values/ProgressCount.h"

#include <ctime>

namespace trellis {

StructureWriter::StructureWriter(StoreSession& session, const StructureDraft& draft, std::string user,
                                 ImportReport& report, const ProgressCB& progress)
    : _session(session),
      _draft(draft),
      _user(std::move(user)),
      _now(static_cast<std::int64_t>(std::time(nullptr))),
      _report(report),
      _progress(progress) {}

bool StructureWriter::Check() {
    ReadStored();
    for (std::size_t i = 0; i < _ids.size(); ++i)
        if (const DraftPart& part = _draft.Parts()[i]; part.isReference && _ids[i] == 0)
            ImportText::Note(_report.problems, part.line, 60227, {part.key});
    NoteCycles(_session, _draft, _ids, _report.problems);
    return _report.problems.empty();
}

void StructureWriter::ReadStored() {
    std::vector<std::string> identifiers;
    for (const DraftPart& part : _draft.Parts())
        identifiers.push_back(part.uuid);
    _session.Table<PartRow>().Select(StoreQuery<PartRow>().WhereIn(&PartRow::uuid, std::move(identifiers)),
                                     [&](const PartRow& row) { _storedParts.emplace(row.uuid, row); });
    for (const DraftPart& part : _draft.Parts()) {
        const auto stored = _storedParts.find(part.uuid);
        _ids.push_back(stored == _storedParts.end() ? 0 : stored->second.id);
    }
    if (_storedParts.empty()) // then there are no links between them either
        return;
    identifiers.clear();
    for (const DraftLink& link : _draft.Links())
        identifiers.push_back(link.uuid);
    _session.Table<LinkRow>().Select(StoreQuery<LinkRow>().WhereIn(&LinkRow::uuid, std::move(identifiers)),
                                     [&](const LinkRow& row) { _storedLinks.emplace(row.uuid, row); });
}

void StructureWriter::Write() {
    WriteParts();
    WriteAttributes();
    WriteLinks();
}

template <class Row>
void StructureWriter::Insert(Row row) {
    row.version = 1;
    row.lastModifier = _user;
    row.lastUpdate = _now;
    _session.Table<Row>().Insert(row);
}

template <class Row>
void StructureWriter::Update(Row row) {
    const std::int64_t version = row.version++;
    row.lastModifier = _user;
    row.lastUpdate = _now;
    _session.Table<Row>().Update(row, version);
}

namespace {

// The stored row with what the file says; a new one gets its number from its key and its name from its number.
PartRow Merged(PartRow row, const DraftPart& part) {
    const auto take = [](std::string& stored, const std::string& said, const std::string& otherwise) {
        if (!said.empty())
            stored = said;
        else if (stored.empty())
            stored = otherwise;
    };
    row.uuid = part.uuid;
    row.kind = "PART_LIST";
    take(row.number, part.number, part.key);
    take(row.revision, part.revision, "");
    take(row.name, part.name, row.number);
    take(row.siteResponsible, part.site, "");
    return row;
}

} // namespace

void StructureWriter::WriteParts() {
    _changed.assign(_ids.size(), false);
    ProgressCount count(_progress, "parts", _ids.size());
    for (std::size_t i = 0; i < _ids.size(); ++i) {
        count.Step();
        const DraftPart& part = _draft.Parts()[i];
        if (part.isReference)
            continue;
        const bool isNew = _ids[i] == 0;
        const PartRow before = isNew ? PartRow() : _storedParts.at(part.uuid);
        PartRow row = Merged(before, part);
        if (isNew) {
            row.id = _ids[i] = _session.NewRowId();
            Insert(row);
            ++_report.newParts;
        } else if (!(row == before)) {
            Update(row);
            _changed[i] = true;
        }
    }
}

void StructureWriter::WriteAttributes() {
    std::vector<std::int64_t> known;
    for (const auto& [uuid, row] : _storedParts)
        known.push_back(row.id);
    std::unordered_map<std::int64_t, std::vector<PartAttributeRow>> stored;
    _session.Table<PartAttributeRow>().Select(
        StoreQuery<PartAttributeRow>().WhereIn(&PartAttributeRow::part, std::move(known)),
        [&](const PartAttributeRow& row) { stored[row.part].push_back(row); });
    for (std::size_t i = 0; i < _ids.size(); ++i) {
        bool changed = _changed[i];
        const auto& before = stored[_ids[i]];
        for (const auto& wanted : _draft.Parts()[i].attributes)
            WriteAttribute(_ids[i], wanted, before, changed);
        if (changed && _storedParts.contains(_draft.Parts()[i].uuid))
            ++_report.changedParts;
    }
}

void StructureWriter::WriteAttribute(std::int64_t part, const std::pair<std::string, std::string>& wanted,
                                     const std::vector<PartAttributeRow>& stored, bool& changed) {
    for (PartAttributeRow row : stored) {
        if (row.name != wanted.first)
            continue;
        if (row.value == wanted.second)
            return;
        row.value = wanted.second;
        Update(row);
        changed = true;
        return;
    }
    PartAttributeRow row;
    row.id = _session.NewRowId();
    row.part = part;
    row.name = wanted.first;
    row.value = wanted.second;
    Insert(row);
    changed = true;
}

void StructureWriter::WriteLinks() {
    ProgressCount count(_progress, "links", _draft.Links().size());
    for (const DraftLink& link : _draft.Links()) {
        count.Step();
        const auto stored = _storedLinks.find(link.uuid);
        const bool isNew = stored == _storedLinks.end();
        LinkRow row = isNew ? LinkRow() : stored->second;
        row.uuid = link.uuid;
        row.clientIdentifier = link.clientIdentifier;
        row.parent = _ids[link.parent];
        row.child = _ids[link.child];
        if (!link.name.empty())
            row.name = link.name;
        row.position = link.position;
        if (isNew) {
            row.id = _session.NewRowId();
            Insert(row);
            ++_report.newLinks;
        } else if (!(row == stored->second)) {
            Update(row);
            ++_report.changedLinks;
        }
    }
}

} // namespace trellis
