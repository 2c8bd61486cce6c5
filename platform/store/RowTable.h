#pragma once

#include "store/RowDescription.h"
#include "store/StoreQuery.h"
#include "store/StoreSession.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace trellis {

// A cell of the row that a table's statements read and write: where it lies and how it is bound.
struct RowCell {
    const char* column;
    std::int64_t* integer = nullptr; // exactly one of the two is set
    std::string* text = nullptr;
    bool reference = false;
};

// RowStatements: the kept statements of one table, on cells whose place in memory never moves.
class RowStatements : public RowTableKeep {
public:
    ~RowStatements() override;

    // Writes the cells as a new row.
    void InsertCells();
    // Overwrites the row of the cells' id if it still has the version; false when it has not.
    bool UpdateCells(std::int64_t version);
    bool Delete(std::int64_t id, std::int64_t version);
    // Reads a row into the cells; false when there is none.
    bool ReadCells(std::int64_t id);
    // Calls `each` after every row that the conditions let through, by id; `each` may not ask this table.
    void SelectCells(const std::vector<StoreCondition>& conditions, const std::function<void()>& each);
    // Whether the unique key holds for the row in the cells, among all rows as they stand now.
    bool KeyHolds(const UniqueKey& key);

protected:
    RowStatements(StoreSession& session, const char* table, std::vector<RowCell> cells);

private:
    struct Selection;
    StoreStatement& Kept(std::unique_ptr<StoreStatement>& slot, const std::string& sql,
                         const std::function<void(StoreStatement&)>& bind);
    void SelectPortion(const std::vector<StoreCondition>& conditions, std::size_t from, std::size_t count,
                       const std::function<void()>& each);
    const RowCell* Cell(const char* column) const;
    static void UseCell(StoreStatement& statement, const RowCell& cell);
    std::string ColumnNames() const;

    StoreSession& _session;
    const char* _table;
    std::vector<RowCell> _cells; // id, version, last_modifier, last_update, then those of the description
    std::int64_t _askedId = 0;
    std::int64_t _askedVersion = 0;
    std::int64_t _found = 0;
    std::unique_ptr<StoreStatement> _insert;
    std::unique_ptr<StoreStatement> _update;
    std::unique_ptr<StoreStatement> _delete;
    std::unique_ptr<StoreStatement> _read;
    std::map<std::string, std::unique_ptr<StoreStatement>> _keyChecks;
    std::map<std::string, std::unique_ptr<Selection>> _selections; // by their SQL text
};

// RowTable: insert, update, delete and selection of one row type, made from its description.
template <class Row>
class RowTable : public RowStatements {
public:
    explicit RowTable(StoreSession& session) : RowTable(session, std::make_unique<Row>()) {}

    void Insert(const Row& row) {
        *_row = row;
        InsertCells();
    }
    // Replaces the stored row if it still has `version`.
    bool Update(const Row& row, std::int64_t version) {
        *_row = row;
        return UpdateCells(version);
    }
    std::optional<Row> Read(std::int64_t id) {
        return ReadCells(id) ? std::optional<Row>(*_row) : std::nullopt;
    }
    void Select(const StoreQuery<Row>& query, const std::function<void(const Row&)>& each) {
        SelectCells(query.Conditions(), [&] { each(*_row); });
    }
    std::vector<Row> Select(const StoreQuery<Row>& query) {
        std::vector<Row> rows;
        Select(query, [&](const Row& row) { rows.push_back(row); });
        return rows;
    }
    // Whether the unique keys of the row hold in the table as it stands; those that `before` has alike are not
    // asked again. `before` may be null.
    bool KeysHold(const Row& row, const Row* before) {
        *_row = row;
        for (const UniqueKey& key : RowDescription<Row>::keys)
            if (key.columns[0] && !(before && SameKey(key, row, *before)) && !KeyHolds(key))
                return false;
        return true;
    }

private:
    RowTable(StoreSession& session, std::unique_ptr<Row> row)
        : RowStatements(session, RowDescription<Row>::table, Cells(*row)), _row(std::move(row)) {}

    static bool SameKey(const UniqueKey& key, const Row& a, const Row& b) {
        for (const Column<Row>& column : RowDescription<Row>::columns)
            if (key.Names(column.name) &&
                !(column.text ? a.*column.text == b.*column.text : a.*column.integer == b.*column.integer))
                return false;
        return true;
    }
    static std::vector<RowCell> Cells(Row& row) {
        std::vector<RowCell> cells{{"id", &row.id},
                                   {"version", &row.version},
                                   {"last_modifier", nullptr, &row.lastModifier},
                                   {"last_update", &row.lastUpdate}};
        for (const Column<Row>& column : RowDescription<Row>::columns)
            cells.push_back({column.name, column.integer ? &(row.*column.integer) : nullptr,
                             column.text ? &(row.*column.text) : nullptr, column.reference});
        return cells;
    }

    std::unique_ptr<Row> _row; // the cells lie in it
};

} // namespace trellis
