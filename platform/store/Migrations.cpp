#include "store/Migrations.h"

#include <sstream>

namespace trellis {

std::vector<std::string> StatementsOf(const Migration& migration, const std::string& keyType) {
    std::vector<std::string> statements(1);
    std::istringstream lines(migration.sql);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("--"))
            continue;
        if (const std::size_t mark = line.find("@KEY@"); mark != std::string::npos)
            line.replace(mark, 5, keyType);
        std::string& statement = statements.back();
        if (statement.empty() && line.empty())
            continue;
        statement += line + "\n";
        if (line.ends_with(";")) {
            statement.erase(statement.size() - 2); // the semicolon and the line feed
            statements.emplace_back();
        }
    }
    statements.pop_back();
    return statements;
}

} // namespace trellis
