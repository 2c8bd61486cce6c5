#pragma once

#include <sqlite3.h>

#include <stdexcept>
#include <string>

namespace trellis::test {

// StoredDatabase: a database file seen past the system: what is really stored, and what only a later release or
// another program would store.
class StoredDatabase {
public:
    explicit StoredDatabase(const std::string& file) {
        if (sqlite3_open(file.c_str(), &_database) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(_database));
    }
    ~StoredDatabase() { sqlite3_close(_database); }
    StoredDatabase(const StoredDatabase&) = delete;
    StoredDatabase& operator=(const StoredDatabase&) = delete;

    // Runs statements; the first column of the first row of the last that gave one, or an empty text.
    std::string Run(const std::string& sql) const {
        std::string result;
        char* message = nullptr;
        const auto keep = [](void* target, int, char** values, char**) {
            auto& kept = *static_cast<std::string*>(target);
            if (kept.empty() && values[0])
                kept = values[0];
            return 0;
        };
        if (sqlite3_exec(_database, sql.c_str(), keep, &result, &message) != SQLITE_OK)
            throw std::runtime_error(message);
        return result;
    }
    int Count(const std::string& fromWhere) const {
        return std::stoi(Run("SELECT count(*) FROM " + fromWhere));
    }

private:
    sqlite3* _database = nullptr;
};

} // namespace trellis::test
