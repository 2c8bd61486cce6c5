#include "store/RowTable.h"

#include <algorithm>
#include <cstring>

namespace trellis {

// A kept selection: its placeholders read these values.
struct RowStatements::Selection {
    std::vector<std::int64_t> integers;
    std::vector<std::string> texts;
    std::unique_ptr<StoreStatement> statement;
};

namespace {

constexpr std::size_t portion = 512; // values of one IN list; a power of two

// Sets of different sizes share statements: a list is filled up to the next power of two with its last value.
std::size_t RoundedUp(std::size_t count) {
    std::size_t size = 1;
    while (size < count)
        size *= 2;
    return size;
}

std::string Placeholder(std::size_t number) {
    return ":v" + std::to_string(number);
}

std::size_t Values(const StoreCondition& condition) {
    return condition.isText ? condition.texts.size() : condition.integers.size();
}

// The SQL of one condition whose set is `size` values long; a reference of 0 is a NULL.
std::string ConditionSql(const StoreCondition& condition, std::size_t size, std::size_t& number) {
    if (condition.operation == StoreCondition::Operator::Contains)
        return "instr(" + condition.column + ", " + Placeholder(number++) + ") > 0";
    if (size == 1)
        return condition.column + (condition.isReference ? " IS " : " = ") + Placeholder(number++);
    std::string sql = condition.column + " IN (";
    for (std::size_t i = 0; i < size; ++i)
        sql += (i ? ", " : "") + Placeholder(number++);
    return sql + ")";
}

} // namespace

RowStatements::RowStatements(StoreSession& session, const char* table, std::vector<RowCell> cells)
    : _session(session), _table(table), _cells(std::move(cells)) {}

RowStatements::~RowStatements() = default;

void RowStatements::UseCell(StoreStatement& statement, const RowCell& cell) {
    if (cell.text)
        statement.Use(*cell.text);
    else if (cell.reference)
        statement.UseReference(*cell.integer);
    else
        statement.Use(*cell.integer);
}

std::string RowStatements::ColumnNames() const {
    std::string names;
    for (const RowCell& cell : _cells)
        names += (names.empty() ? "" : ", ") + std::string(cell.column);
    return names;
}

const RowCell* RowStatements::Cell(const char* column) const {
    const auto cell = std::find_if(_cells.begin(), _cells.end(), [&](const RowCell& each) {
        return std::strcmp(each.column, column) == 0;
    });
    return cell == _cells.end() ? nullptr : &*cell;
}

StoreStatement& RowStatements::Kept(std::unique_ptr<StoreStatement>& slot, const std::string& sql,
                                    const std::function<void(StoreStatement&)>& bind) {
    if (!slot) {
        auto statement = std::make_unique<StoreStatement>(_session, sql);
        bind(*statement);
        slot = std::move(statement);
    }
    return *slot;
}

void RowStatements::InsertCells() {
    if (!_insert) {
        std::string values;
        for (std::size_t i = 0; i < _cells.size(); ++i)
            values += (i ? ", " : "") + Placeholder(i);
        Kept(_insert,
             "INSERT INTO " + std::string(_table) + " (" + ColumnNames() + ") VALUES (" + values + ")",
             [&](StoreStatement& statement) {
                 for (const RowCell& cell : _cells)
                     UseCell(statement, cell);
             });
    }
    _insert->Execute();
}

bool RowStatements::UpdateCells(std::int64_t version) {
    _askedVersion = version;
    if (!_update) {
        std::string sets;
        for (std::size_t i = 1; i < _cells.size(); ++i)
            sets += (i > 1 ? ", " : "") + std::string(_cells[i].column) + " = " + Placeholder(i);
        Kept(_update,
             "UPDATE " + std::string(_table) + " SET " + sets + " WHERE id = :id AND version = :asked",
             [&](StoreStatement& statement) {
                 for (std::size_t i = 1; i < _cells.size(); ++i)
                     UseCell(statement, _cells[i]);
                 statement.Use(*_cells.front().integer);
                 statement.Use(_askedVersion);
             });
    }
    _update->Execute();
    return _update->AffectedRows() > 0;
}

bool RowStatements::Delete(std::int64_t id, std::int64_t version) {
    _askedId = id;
    _askedVersion = version;
    Kept(_delete, "DELETE FROM " + std::string(_table) + " WHERE id = :id AND version = :asked",
         [&](StoreStatement& statement) {
             statement.Use(_askedId);
             statement.Use(_askedVersion);
         })
        .Execute();
    return _delete->AffectedRows() > 0;
}

bool RowStatements::ReadCells(std::int64_t id) {
    _askedId = id;
    StoreStatement& read =
        Kept(_read, "SELECT " + ColumnNames() + " FROM " + _table + " WHERE id = :id",
             [&](StoreStatement& statement) {
                 statement.Use(_askedId);
                 for (const RowCell& cell : _cells)
                     cell.text ? statement.Into(*cell.text) : statement.Into(*cell.integer);
             });
    if (!read.Execute())
        return false;
    // The next row would overwrite the cells, but an id has one row: this only ends the query.
    read.Fetch();
    return true;
}

void RowStatements::SelectCells(const std::vector<StoreCondition>& conditions,
                                const std::function<void()>& each) {
    std::size_t longest = 1;
    for (const StoreCondition& condition : conditions) {
        if (Values(condition) == 0)
            return;
        longest = std::max(longest, Values(condition));
    }
    for (std::size_t from = 0; from < longest; from += portion)
        SelectPortion(conditions, from, std::min(portion, longest - from), each);
}

void RowStatements::SelectPortion(const std::vector<StoreCondition>& conditions, std::size_t from,
                                  std::size_t count, const std::function<void()>& each) {
    std::string where;
    std::size_t number = 0;
    std::vector<std::int64_t> integers;
    std::vector<std::string> texts;
    for (const StoreCondition& condition : conditions) {
        const bool isSet = Values(condition) > 1;
        const std::size_t size = isSet ? RoundedUp(count) : 1;
        where += (where.empty() ? " WHERE " : " AND ") + ConditionSql(condition, size, number);
        for (std::size_t i = 0; i < size; ++i) {
            const std::size_t value = isSet ? from + std::min(i, count - 1) : 0;
            if (condition.isText)
                texts.push_back(condition.texts[value]);
            else
                integers.push_back(condition.integers[value]);
        }
    }
    const std::string sql = "SELECT " + ColumnNames() + " FROM " + _table + where + " ORDER BY id";
    std::unique_ptr<Selection>& selection = _selections[sql];
    if (!selection) {
        auto made = std::make_unique<Selection>();
        made->integers = integers;
        made->texts = texts;
        made->statement = std::make_unique<StoreStatement>(_session, sql);
        auto integer = made->integers.begin();
        auto text = made->texts.begin();
        for (const StoreCondition& condition : conditions) {
            const std::size_t size = Values(condition) > 1 ? RoundedUp(count) : 1;
            for (std::size_t i = 0; i < size; ++i) {
                if (condition.isText)
                    made->statement->Use(*text++);
                else if (condition.isReference)
                    made->statement->UseReference(*integer++);
                else
                    made->statement->Use(*integer++);
            }
        }
        for (const RowCell& cell : _cells)
            cell.text ? made->statement->Into(*cell.text) : made->statement->Into(*cell.integer);
        selection = std::move(made);
    }
    std::copy(integers.begin(), integers.end(), selection->integers.begin());
    std::copy(texts.begin(), texts.end(), selection->texts.begin());
    for (bool row = selection->statement->Execute(); row; row = selection->statement->Fetch())
        each();
}

bool RowStatements::KeyHolds(const UniqueKey& key) {
    if (const RowCell* deciding = key.unlessEmpty ? Cell(key.unlessEmpty) : nullptr;
        deciding && (deciding->text ? deciding->text->empty() : *deciding->integer == 0))
        return true;
    std::string where;
    std::vector<const RowCell*> cells;
    for (const char* column : key.columns) {
        if (!column)
            continue;
        cells.push_back(Cell(column));
        where += (where.empty() ? "" : " AND ") + std::string(column) +
                 (cells.back()->reference ? " IS " : " = ") + Placeholder(cells.size());
    }
    if (key.unlessEmpty)
        where += std::string(" AND ") + key.unlessEmpty +
                 (Cell(key.unlessEmpty)->text ? " <> ''"
                                              : " IS NOT NULL AND " + std::string(key.unlessEmpty) + " <> 0");
    StoreStatement& check =
        Kept(_keyChecks[where], "SELECT count(*) FROM " + std::string(_table) + " WHERE " + where,
             [&](StoreStatement& statement) {
                 for (const RowCell* cell : cells)
                     UseCell(statement, *cell);
                 statement.Into(_found);
             });
    check.Execute();
    check.Fetch();
    return _found <= 1;
}

} // namespace trellis
