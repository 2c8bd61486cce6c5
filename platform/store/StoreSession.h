#pragma once

#include "store/RowIdSource.h"
#include "store/StoreStatement.h"

#include <cstdint>
#include <memory>
#include <string>
#include <typeindex>
#include <unordered_map>

namespace trellis {

template <class Row>
class RowTable;

// What StoreSession keeps of a RowTable without knowing its row.
class RowTableKeep {
public:
    virtual ~RowTableKeep() = default;
};

// StoreSession: one open database. The url is a path or "sqlite:PATH" for a file, or "sqlite::memory:" for a
// database that lives as long as the session. Any failure throws StoreFailure: 20901, 20912; 60302 when a
// database that is to be made is there already.
class StoreSession {
public:
    // Makes a database with the newest schema, the corporate dictionary and the leading string.
    static std::unique_ptr<StoreSession> Create(const std::string& url);
    // Opens one that exists and brings an older schema up in one transaction. One of a newer schema is refused.
    static std::unique_ptr<StoreSession> Open(const std::string& url);
    ~StoreSession();

    // Path of the file, or ":memory:".
    const std::string& Path() const { return _path; }
    // Name of the database: that of its file without folder and ending.
    const std::string& Name() const { return _name; }
    // Eight lower-case letters and digits, made with the database: they tell databases of one name apart.
    const std::string& LeadingString() const { return _leadingString; }
    int SchemaVersion() const { return _schemaVersion; }
    // The schema that this build makes.
    static int NewestSchemaVersion();

    // Runs a statement without result. Not for values that come from outside: those are bound.
    void Execute(const std::string& sql);
    // The first column of the first row of a query as a number or text; 0 or empty without a row.
    std::int64_t Number(const std::string& sql);
    std::string Text(const std::string& sql);

    // The statements for a row type, prepared at first use and kept.
    template <class Row>
    RowTable<Row>& Table();

    std::int64_t NewRowId() { return _ids.Next(); }

    // For tests of failure: the n-th statement from now on (begins and commits included, 1 = the next) fails with
    // 20903 before it does anything. 0 ends it.
    void FailStatement(int n) { _failIn = n; }

private:
    friend class StoreStatement;
    friend class StoreTransaction;
    struct Connection;

    explicit StoreSession(const std::string& url);
    void ReadStoreTexts();
    void Migrate(int from);
    void CountStatement();
    void Begin();
    void Commit();
    void RollBack() noexcept;

    std::string _path;
    std::string _name;
    std::string _leadingString;
    int _schemaVersion = 0;
    int _failIn = 0;
    RowIdSource _ids;
    std::unique_ptr<Connection> _connection;
    std::unordered_map<std::type_index, std::unique_ptr<RowTableKeep>> _tables;
};

// StoreTransaction: a write transaction for the length of a scope; without Commit it is rolled back. It takes the
// lock of the only writer at once, so that what is read inside stays true until the end.
class StoreTransaction {
public:
    explicit StoreTransaction(StoreSession& session);
    ~StoreTransaction();
    StoreTransaction(const StoreTransaction&) = delete;
    StoreTransaction& operator=(const StoreTransaction&) = delete;

    void Commit();

private:
    StoreSession& _session;
    bool _open = true;
};

template <class Row>
RowTable<Row>& StoreSession::Table() {
    std::unique_ptr<RowTableKeep>& kept = _tables[std::type_index(typeid(Row))];
    if (!kept)
        kept = std::make_unique<RowTable<Row>>(*this);
    return static_cast<RowTable<Row>&>(*kept);
}

} // namespace trellis
