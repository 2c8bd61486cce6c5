#pragma once

#include "model/StructureDraft.h"
#include "store/ModelRows.h"
#include "store/StoreSession.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace trellis {

// StructureWriter: writes a draft into the store, inside the transaction of its caller. Parts and links that are
// stored under the same identifier are updated where they differ.
class StructureWriter {
public:
    StructureWriter(StoreSession& session, const StructureDraft& draft, std::string user,
                    ImportReport& report, const ProgressCB& progress);

    // Notes what only the database can tell: unknown parts and cycles. False when problems stand.
    bool Check();
    void Write();

private:
    void ReadStored();
    void WriteParts();
    void WriteAttributes();
    void WriteLinks();
    void WriteAttribute(std::int64_t part, const std::pair<std::string, std::string>& wanted,
                        const std::vector<PartAttributeRow>& stored, bool& changed);
    template <class Row>
    void Insert(Row row);
    template <class Row>
    void Update(Row row);

    StoreSession& _session;
    const StructureDraft& _draft;
    std::string _user;
    std::int64_t _now;
    ImportReport& _report;
    const ProgressCB& _progress;
    std::unordered_map<std::string, PartRow> _storedParts; // by identifier
    std::unordered_map<std::string, LinkRow> _storedLinks;
    std::vector<std::int64_t> _ids; // of the draft's parts; 0 until a new one is written
    std::vector<bool> _changed;     // the draft's parts that were written
};

} // namespace trellis
