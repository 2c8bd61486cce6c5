#include "store/StoreExamination.h"

#include "store/ConfigurationRows.h"
#include "store/ModelRows.h"
#include "store/RowTable.h"

#include <algorithm>
#include <map>
#include <unordered_map>

namespace trellis {

namespace {

constexpr int mostLines = 100; // of one sort

struct CountedTable {
    const char* word;
    const char* query;
};

constexpr CountedTable countedTables[] = {
    {"parts", "SELECT count(*) FROM part"},
    {"links", "SELECT count(*) FROM link"},
    {"attributes", "SELECT count(*) FROM part_attribute"},
    {"configurable parts", "SELECT count(*) FROM configurable_part"},
    {"dictionaries", "SELECT count(*) FROM config_item WHERE status = 'D'"},
    {"categories", "SELECT count(*) FROM category"},
    {"options", "SELECT count(*) FROM effectivity WHERE category_id IS NOT NULL"},
    {"effectivities on links", "SELECT count(*) FROM link_effectivity"},
    {"persons", "SELECT count(*) FROM person"},
    {"rights", "SELECT count(*) FROM function_right"},
    {"administrator values", "SELECT count(*) FROM administrator_value"},
    {"events", "SELECT count(*) FROM event"}};

// Queries that give one text per thing wrong.
struct DamageQuery {
    const char* prefix;
    const char* query;
};

constexpr DamageQuery damageQueries[] = {
    {"damaged file: ", "SELECT integrity_check FROM pragma_integrity_check WHERE integrity_check <> 'ok'"},
    {"a row refers to a missing one: ",
     "SELECT \"table\" || ' ' || coalesce(rowid, '') || ' to ' || parent FROM pragma_foreign_key_check"},
    {"a category name occurs twice in a dictionary: ",
     "SELECT name FROM category GROUP BY config_item_id, name HAVING count(*) > 1"},
    {"an option name occurs twice in a dictionary: ",
     "SELECT option_name FROM effectivity WHERE category_id IS NOT NULL GROUP BY config_item_id, option_name "
     "HAVING count(*) > 1"},
    {"a part is configurable twice: ",
     "SELECT part_uuid FROM configurable_part GROUP BY part_uuid HAVING count(*) > 1"},
    {"a dictionary or config item exists twice for a part: ",
     "SELECT design_uuid FROM config_item GROUP BY design_uuid, status HAVING count(*) > 1"},
    {"a configurable part is no part of this database: ",
     "SELECT part_uuid FROM configurable_part WHERE part_uuid NOT IN (SELECT uuid FROM part)"},
    {"a link holds one client identifier with another link of its part: ",
     "SELECT client_identifier FROM link GROUP BY parent_id, client_identifier HAVING count(*) > 1"}};

void Ask(StoreSession& session, const DamageQuery& damage, std::vector<std::string>& lines) {
    std::string text;
    StoreStatement statement(session, std::string(damage.query) + " LIMIT " + std::to_string(mostLines));
    statement.Into(text);
    for (bool row = statement.Execute(); row; row = statement.Fetch())
        lines.push_back(damage.prefix + text);
}

// Takes parts without children away until none is left; what stays lies on a cycle or above one.
void FindCycles(StoreSession& session, std::vector<std::string>& lines) {
    std::unordered_map<std::int64_t, int> children;
    std::unordered_map<std::int64_t, std::vector<std::int64_t>> parents;
    session.Table<LinkRow>().Select({}, [&](const LinkRow& link) {
        ++children[link.parent];
        children.try_emplace(link.child, 0);
        parents[link.child].push_back(link.parent);
    });
    std::vector<std::int64_t> bare;
    for (const auto& [part, count] : children)
        if (count == 0)
            bare.push_back(part);
    while (!bare.empty()) {
        const std::int64_t part = bare.back();
        bare.pop_back();
        children.erase(part);
        for (const std::int64_t parent : parents[part])
            if (--children[parent] == 0)
                bare.push_back(parent);
    }
    int found = 0;
    for (const auto& [id, count] : std::map<std::int64_t, int>(children.begin(), children.end()))
        if (const auto part = session.Table<PartRow>().Read(id); part && ++found <= mostLines)
            lines.push_back("a part contains itself, or one that does: " +
                            RowDescription<PartRow>::Display(*part));
}

} // namespace

std::vector<std::pair<std::string, std::int64_t>> CountObjects(StoreSession& session) {
    std::vector<std::pair<std::string, std::int64_t>> counts;
    for (const CountedTable& table : countedTables)
        counts.emplace_back(table.word, session.Number(table.query));
    return counts;
}

std::vector<std::int64_t> UnusedParts(StoreSession& session) {
    std::vector<std::int64_t> ids;
    std::int64_t id = 0;
    StoreStatement statement(session, "SELECT id FROM part WHERE NOT EXISTS "
                                      "(SELECT 1 FROM link WHERE link.child_id = part.id) ORDER BY id");
    statement.Into(id);
    for (bool row = statement.Execute(); row; row = statement.Fetch())
        ids.push_back(id);
    return ids;
}

std::unordered_set<std::int64_t> PartsWithLinks(StoreSession& session, const std::vector<std::int64_t>& ids) {
    constexpr std::size_t portion = 500;
    std::unordered_set<std::int64_t> holders;
    for (std::size_t from = 0; from < ids.size(); from += portion) {
        std::string set;
        for (std::size_t i = from; i < std::min(from + portion, ids.size()); ++i)
            set += (set.empty() ? "" : ", ") + std::to_string(ids[i]);
        std::int64_t id = 0;
        StoreStatement statement(session,
                                 "SELECT DISTINCT parent_id FROM link WHERE parent_id IN (" + set + ")");
        statement.Into(id);
        for (bool row = statement.Execute(); row; row = statement.Fetch())
            holders.insert(id);
    }
    return holders;
}

std::vector<std::string> FindDamage(StoreSession& session) {
    std::vector<std::string> lines;
    for (const DamageQuery& damage : damageQueries)
        Ask(session, damage, lines);
    FindCycles(session, lines);
    return lines;
}

} // namespace trellis
