#include "model/StructureCycles.h"

#include "store/ModelRows.h"
#include "store/RowTable.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace trellis {

namespace {

// A link as the walk sees it: where it leads, and its line in the file, 0 for a link of the database.
struct Arc {
    std::size_t child;
    int line;
};

// The structure as it would be: nodes are the draft's parts, then parts of the database below them.
class StructureWalk {
public:
    StructureWalk(StoreSession& session, const StructureDraft& draft, const std::vector<std::int64_t>& ids);
    void NoteCycles(ImportText::Problems& problems);

private:
    struct Step {
        std::size_t node;
        std::size_t next;
    };

    void AddStoredLinks(StoreSession& session, const StructureDraft& draft,
                        const std::vector<std::int64_t>& ids);
    std::size_t NodeOf(std::int64_t id);
    void WalkFrom(std::size_t root, ImportText::Problems& problems);
    void Note(const Arc& arc, ImportText::Problems& problems);
    std::string NameOf(std::size_t node) const { return node < _names.size() ? _names[node] : "..."; }

    enum class Mark : char { Unseen, OnPath, Done };

    std::vector<std::string> _names; // of the draft's parts
    std::vector<std::vector<Arc>> _arcs;
    std::unordered_map<std::int64_t, std::size_t> _nodes; // by id
    std::vector<Mark> _marks;
    std::vector<Step> _path;
};

StructureWalk::StructureWalk(StoreSession& session, const StructureDraft& draft,
                             const std::vector<std::int64_t>& ids) {
    for (const DraftPart& part : draft.Parts())
        _names.push_back(part.key);
    _arcs.resize(_names.size());
    for (const DraftLink& link : draft.Links())
        _arcs[link.parent].push_back({link.child, link.line});
    AddStoredLinks(session, draft, ids);
}

std::size_t StructureWalk::NodeOf(std::int64_t id) {
    const auto [node, isNew] = _nodes.try_emplace(id, _arcs.size());
    if (isNew)
        _arcs.emplace_back();
    return node->second;
}

// Level by level down from the parts of the draft that are stored. Links that the file replaces are left out.
void StructureWalk::AddStoredLinks(StoreSession& session, const StructureDraft& draft,
                                   const std::vector<std::int64_t>& ids) {
    std::unordered_set<std::string> replaced;
    for (const DraftLink& link : draft.Links())
        replaced.insert(link.uuid);
    std::vector<std::int64_t> level;
    for (std::size_t i = 0; i < ids.size(); ++i)
        if (ids[i] != 0) {
            _nodes[ids[i]] = i;
            level.push_back(ids[i]);
        }
    while (!level.empty()) {
        std::vector<std::int64_t> below;
        session.Table<LinkRow>().Select(StoreQuery<LinkRow>().WhereIn(&LinkRow::parent, level),
                                        [&](const LinkRow& link) {
                                            if (replaced.contains(link.uuid))
                                                return;
                                            if (!_nodes.contains(link.child))
                                                below.push_back(link.child);
                                            const std::size_t child = NodeOf(link.child);
                                            _arcs[NodeOf(link.parent)].push_back({child, 0});
                                        });
        level = std::move(below);
    }
}

void StructureWalk::NoteCycles(ImportText::Problems& problems) {
    _marks.assign(_arcs.size(), Mark::Unseen);
    for (std::size_t node = 0; node < _names.size(); ++node)
        if (_marks[node] == Mark::Unseen)
            WalkFrom(node, problems);
}

void StructureWalk::WalkFrom(std::size_t root, ImportText::Problems& problems) {
    _path.push_back({root, 0});
    _marks[root] = Mark::OnPath;
    while (!_path.empty()) {
        Step& step = _path.back();
        if (step.next == _arcs[step.node].size()) {
            _marks[step.node] = Mark::Done;
            _path.pop_back();
            continue;
        }
        const Arc arc = _arcs[step.node][step.next++];
        if (_marks[arc.child] == Mark::OnPath) {
            Note(arc, problems);
        } else if (_marks[arc.child] == Mark::Unseen) {
            _marks[arc.child] = Mark::OnPath;
            _path.push_back({arc.child, 0});
        }
    }
}

// The cycle goes from the arc's child down the path and back. It is told at a line of the file: the arc's own, or that
// of another link on the cycle.
void StructureWalk::Note(const Arc& arc, ImportText::Problems& problems) {
    auto step =
        std::find_if(_path.begin(), _path.end(), [&](const Step& each) { return each.node == arc.child; });
    int line = arc.line;
    std::string names;
    for (; step != _path.end(); ++step) {
        if (line == 0 && step + 1 != _path.end())
            line = _arcs[step->node][step->next - 1].line;
        if (names.size() < 200)
            names += NameOf(step->node) + " > ";
    }
    ImportText::Note(problems, line, 60228, {names + NameOf(arc.child)});
}

} // namespace

void NoteCycles(StoreSession& session, const StructureDraft& draft, const std::vector<std::int64_t>& ids,
                ImportText::Problems& problems) {
    StructureWalk(session, draft, ids).NoteCycles(problems);
}

} // namespace trellis
