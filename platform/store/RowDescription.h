#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace trellis {

// What every row begins with. Row structs hold two kinds of fields only, std::int64_t and std::string, so that
// one description serves binding, comparing and searching. Times are seconds since 1970-01-01 UTC.
struct RowHead {
    std::int64_t id = 0; // made in memory by RowIdSource, so that unsaved objects can refer to each other
    std::int64_t version = 0; // 0: never stored; each save that changes the row adds 1
    std::string lastModifier;
    std::int64_t lastUpdate = 0;

    friend bool operator==(const RowHead&, const RowHead&) = default;
};

// The kinds of rows, in the order in which they are written (and the reverse of that in which they are deleted).
// A new table adds its kind here, its struct and description, and a migration.
enum class RowKind {
    Part,
    PartAttribute,
    Link,
    ConfigurablePart,
    ConfigItem,
    Category,
    Effectivity,
    EffectivityOption,
    EffectivityAttribute,
    CategoryDefault,
    CompatibilityMatrix,
    MatrixColumn,
    ConfigRule,
    RuleReference,
    LinkEffectivity,
    Person,
    Role,
    Organization,
    Site,
    PeopleAbove,
    Right,
    AdministratorValue,
    Event,
    Count
};

// Which of the two sets of unsaved changes holds what is made or changed of a kind.
enum class ChangeHome { Service, Model };

// A column and the member of the row that it holds.
template <class Row>
struct Column {
    constexpr Column(const char* columnName, std::int64_t Row::*member) : name(columnName), integer(member) {}
    constexpr Column(const char* columnName, std::string Row::*member) : name(columnName), text(member) {}

    const char* name;
    std::int64_t Row::*integer = nullptr; // exactly one of the two is set
    std::string Row::*text = nullptr;
    bool reference = false; // refers to a row; 0 stands for none and is stored as NULL
};

// A column that refers to another row by its id; 0 means none.
template <class Row>
constexpr Column<Row> Reference(const char* name, std::int64_t Row::*member) {
    Column<Row> column(name, member);
    column.reference = true;
    return column;
}

// A combination of columns that may occur once in the table. It is judged when all of a save is written, so that
// names can be swapped, or freed and taken again, in one save. Rows whose `unlessEmpty` column is empty, 0 or NULL
// are not judged.
struct UniqueKey {
    const char* columns[3] = {nullptr, nullptr, nullptr};
    const char* unlessEmpty = nullptr;

    // Whether the column has a part in the key.
    constexpr bool Names(std::string_view column) const {
        for (const char* each : {columns[0], columns[1], columns[2], unlessEmpty})
            if (each && column == each)
                return true;
        return false;
    }
};

// The one description of a row type, specialised beside its struct:
//   kind, table     RowKind and name of the table
//   home            the scope of its unsaved changes
//   columns         Column<Row>[]: all columns behind those of RowHead
//   keys            UniqueKey[], ended by an empty one; what a unique index of the table guards is left out
//   Display(row)    what messages call the object
template <class Row>
struct RowDescription;

} // namespace trellis
