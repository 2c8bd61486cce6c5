#pragma once

#include <string>
#include <vector>

namespace trellis {

// One step of the schema: the statements that lead from the version before to this one. `@KEY@` stands for the
// type of a table's primary key, the one word on which the databases differ.
struct Migration {
    int version;
    const char* sql;
};

// All steps in ascending order; the build makes them from the files in migrations/.
const std::vector<Migration>& Migrations();

// The statements of a step, one by one, for a database whose primary keys have the given type. Statements end with a
// semicolon at the end of a line; lines that begin with "--" are comments.
std::vector<std::string> StatementsOf(const Migration& migration, const std::string& keyType);

} // namespace trellis
