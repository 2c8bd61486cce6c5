#include "store/StoreSession.h"

#include "store/Migrations.h"
#include "store/RowTable.h"
#include "store/StoreConnection.h"

#include <filesystem>
#include <random>
#include <system_error>

namespace trellis {

namespace {

constexpr const char* memoryPath = ":memory:";
constexpr const char* sqliteKey = "INTEGER PRIMARY KEY";

std::string PathOf(const std::string& url) {
    const std::string scheme = "sqlite:";
    return url.starts_with(scheme) ? url.substr(scheme.size()) : url;
}

std::string NameOf(const std::string& path) {
    return path == memoryPath ? "memory" : std::filesystem::path(path).stem().string();
}

bool Exists(const std::string& path) {
    std::error_code ignored;
    return std::filesystem::exists(path, ignored);
}

// What the engine says went wrong, without the extended part.
int ResultOf(const soci::soci_error& error) {
    const auto* sqlite = dynamic_cast<const soci::sqlite3_soci_error*>(&error);
    return sqlite ? sqlite->result() & 0xff : SQLITE_ERROR;
}

// The reason in the words of the engine, without what the client library puts before them.
std::string ReasonOf(const soci::soci_error& error, bool reads) {
    const int result = ResultOf(error);
    if (result == SQLITE_BUSY || result == SQLITE_LOCKED)
        return "another process is writing to it";
    if (reads && result == SQLITE_READONLY)
        return "its folder is read only, and readers have to write there, too";
    std::string reason = error.get_error_message();
    for (const std::string_view before : {"sqlite3_statement_backend::", "Cannot establish connection"}) {
        const std::size_t words = reason.find_first_of(".:", before.size());
        if (reason.starts_with(before) && words != std::string::npos && words + 2 <= reason.size())
            reason.erase(0, words + 2);
    }
    return reason;
}

std::string NewLeadingString() {
    constexpr char letters[] = "abcdefghijklmnopqrstuvwxyz0123456789";
    std::random_device random;
    std::uniform_int_distribution<std::size_t> any(0, sizeof letters - 2);
    std::string text;
    for (int i = 0; i < 8; ++i)
        text += letters[any(random)];
    return text;
}

} // namespace

[[noreturn]] void ThrowStoreFailure(const soci::soci_error& error, const std::string& name,
                                    const std::string& sql) {
    const int result = ResultOf(error);
    const bool unreadable = result == SQLITE_CANTOPEN || result == SQLITE_NOTADB || result == SQLITE_CORRUPT;
    const bool reads = sql.starts_with("SELECT");
    const int code = unreadable || reads ? 20901 : 20903;
    throw StoreFailure(code, {name, ReasonOf(error, reads)},
                       code == 20901 || result == SQLITE_READONLY ? StoreFailure::Outlook::Pointless
                                                                  : StoreFailure::Outlook::MayBeRepeated);
}

StoreSession::StoreSession(const std::string& url)
    : _path(PathOf(url)), _name(NameOf(_path)), _connection(std::make_unique<Connection>()) {
    if (_path.find('"') != std::string::npos || _path.find("://") != std::string::npos)
        throw StoreFailure(20901, {_path, "no store of this kind is known"});
    try {
        _connection->sql.open(soci::sqlite3, "db=\"" + _path + "\" timeout=5");
        for (const char* pragma :
             {"PRAGMA journal_mode=WAL", "PRAGMA synchronous=FULL", "PRAGMA foreign_keys=ON"})
            _connection->sql << pragma;
    } catch (const soci::soci_error& error) {
        throw StoreFailure(20901, {_path, ReasonOf(error, true)});
    }
}

StoreSession::~StoreSession() {
    _tables.clear(); // their statements go before the connection
}

std::unique_ptr<StoreSession> StoreSession::Create(const std::string& url) {
    const std::string path = PathOf(url);
    const bool inFile = path != memoryPath;
    if (inFile && Exists(path))
        throw StoreFailure(60302, {path});
    try {
        std::unique_ptr<StoreSession> session(new StoreSession(url));
        session->Migrate(0);
        session->ReadStoreTexts();
        return session;
    } catch (const StoreFailure&) {
        std::error_code ignored;
        if (inFile)
            for (const char* ending : {"", "-wal", "-shm"})
                std::filesystem::remove(path + ending, ignored);
        throw;
    }
}

std::unique_ptr<StoreSession> StoreSession::Open(const std::string& url) {
    const std::string path = PathOf(url);
    if (path == memoryPath)
        return Create(url);
    if (!Exists(path))
        throw StoreFailure(20901, {path, "no such file"});
    std::unique_ptr<StoreSession> session(new StoreSession(url));
    if (session->Number("SELECT count(*) FROM sqlite_master WHERE name = 'store_info'") == 0)
        throw StoreFailure(20901, {path, "the file is no database of this system"});
    session->ReadStoreTexts();
    if (session->_schemaVersion > NewestSchemaVersion())
        throw StoreFailure(
            20912, {path, std::to_string(session->_schemaVersion), std::to_string(NewestSchemaVersion())});
    if (session->_schemaVersion < NewestSchemaVersion()) {
        session->Migrate(session->_schemaVersion);
        session->ReadStoreTexts();
    }
    return session;
}

int StoreSession::NewestSchemaVersion() {
    return Migrations().back().version;
}

void StoreSession::ReadStoreTexts() {
    _schemaVersion = static_cast<int>(Number("SELECT schema_version FROM store_info"));
    _leadingString = Text("SELECT leading_string FROM store_info");
}

void StoreSession::Migrate(int from) {
    StoreTransaction transaction(*this);
    if (from > 0) // another process may have been faster
        from = static_cast<int>(Number("SELECT schema_version FROM store_info"));
    for (const Migration& migration : Migrations()) {
        if (migration.version <= from)
            continue;
        for (const std::string& statement : StatementsOf(migration, sqliteKey))
            Execute(statement);
    }
    if (from == 0)
        Execute("INSERT INTO store_info (leading_string, schema_version) VALUES ('" + NewLeadingString() +
                "', 0)");
    Execute("UPDATE store_info SET schema_version = " + std::to_string(NewestSchemaVersion()));
    transaction.Commit();
}

void StoreSession::Execute(const std::string& sql) {
    CountStatement();
    GuardStore(_path, sql, [&] { _connection->sql << sql; });
}

std::int64_t StoreSession::Number(const std::string& sql) {
    std::int64_t number = 0;
    StoreStatement statement(*this, sql);
    statement.Into(number);
    statement.Execute();
    return number;
}

std::string StoreSession::Text(const std::string& sql) {
    std::string text;
    StoreStatement statement(*this, sql);
    statement.Into(text);
    statement.Execute();
    return text;
}

void StoreSession::CountStatement() {
    if (_failIn > 0 && --_failIn == 0)
        throw StoreFailure(20903, {_path, "a fault was asked for"});
}

void StoreSession::Begin() {
    Execute("BEGIN IMMEDIATE");
}

void StoreSession::Commit() {
    Execute("COMMIT");
}

void StoreSession::RollBack() noexcept {
    try {
        _connection->sql << "ROLLBACK";
    } catch (const soci::soci_error&) {
        // The store ended the transaction itself when it failed; nothing is left to undo.
    }
}

StoreTransaction::StoreTransaction(StoreSession& session) : _session(session) {
    _session.Begin();
}

StoreTransaction::~StoreTransaction() {
    if (_open)
        _session.RollBack();
}

void StoreTransaction::Commit() {
    _session.Commit();
    _open = false;
}

} // namespace trellis
