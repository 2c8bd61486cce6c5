// Import of 100,000 links and saving of 10,000 changed objects, each against the same rows through SQLite's C
// interface in one transaction. Both sides write files of the same schema with the same settings. The last lines
// give the ratios.
#include "model/StructureImport.h"
#include "store/RowTable.h"
#include "store/StoreSession.h"
#include "store/Workspace.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

using namespace trellis;

namespace {

constexpr int linkCount = 100000;
constexpr int partCount = 5000;
constexpr int changedCount = 10000;

std::string BenchFolder() {
    const auto folder = std::filesystem::temp_directory_path() / "trellis-bench";
    std::filesystem::create_directories(folder);
    return folder.string();
}

std::string FreshFile(const std::string& name) {
    const std::string path = BenchFolder() + "/" + name;
    for (const char* ending : {"", "-wal", "-shm"})
        std::filesystem::remove(path + ending);
    return path;
}

[[noreturn]] void Fail(const std::string& what) {
    std::fprintf(stderr, "store bench: %s\n", what.c_str());
    std::exit(1);
}

// A structure of four levels in which every part below the top is used many times.
const std::string& StructureText() {
    static const std::string text = [] {
        std::string rows = "parent,child,link_id,link_name,position\n";
        for (int i = 0; i < linkCount; ++i) {
            const int parent = i % (partCount / 2);
            const int child = partCount / 2 + (i / 7 + i) % (partCount / 2);
            rows += "P" + std::to_string(parent) + ",P" + std::to_string(child) + ",L" + std::to_string(i) +
                    ",link " + std::to_string(i) + "," + std::to_string(i) + "\n";
        }
        return rows;
    }();
    return text;
}

void Import(const std::string& path) {
    ZOLGYRError error;
    ImportReport report;
    Workspace::MakeCurrent(std::make_unique<Workspace>(StoreSession::Create(path), "anna"));
    if (!StructureImport::ReadText(StructureText(), StructureImport::Form::Csv, "bench", report, error))
        Fail("import failed with " + std::to_string(error.GetCode()));
}

// A connection through the C interface, set as the store sets its own.
class PlainDatabase {
public:
    explicit PlainDatabase(const std::string& path) {
        Check(sqlite3_open(path.c_str(), &_connection));
        for (const char* sql :
             {"PRAGMA journal_mode=WAL", "PRAGMA synchronous=FULL", "PRAGMA foreign_keys=ON"})
            Run(sql);
    }
    ~PlainDatabase() { sqlite3_close(_connection); }
    PlainDatabase(const PlainDatabase&) = delete;
    PlainDatabase& operator=(const PlainDatabase&) = delete;

    void Run(const char* sql) { Check(sqlite3_exec(_connection, sql, nullptr, nullptr, nullptr)); }
    sqlite3_stmt* Prepare(const std::string& sql) {
        sqlite3_stmt* statement = nullptr;
        Check(sqlite3_prepare_v2(_connection, sql.c_str(), -1, &statement, nullptr));
        return statement;
    }
    void Check(int result) {
        if (result != SQLITE_OK && result != SQLITE_DONE && result != SQLITE_ROW)
            Fail(sqlite3_errmsg(_connection));
    }

private:
    sqlite3* _connection = nullptr;
};

template <class Row>
std::string InsertSql() {
    std::string names = "id, version, last_modifier, last_update";
    std::string values = "?, ?, ?, ?";
    for (const Column<Row>& column : RowDescription<Row>::columns) {
        names += std::string(", ") + column.name;
        values += ", ?";
    }
    return "INSERT INTO " + std::string(RowDescription<Row>::table) + " (" + names + ") VALUES (" + values +
           ")";
}

template <class Row>
void InsertPlain(PlainDatabase& plain, const std::vector<Row>& rows) {
    sqlite3_stmt* insert = plain.Prepare(InsertSql<Row>());
    for (const Row& row : rows) {
        int at = 0;
        const auto number = [&](std::int64_t value) { sqlite3_bind_int64(insert, ++at, value); };
        const auto text = [&](const std::string& value) {
            sqlite3_bind_text(insert, ++at, value.data(), static_cast<int>(value.size()), nullptr);
        };
        number(row.id);
        number(row.version);
        text(row.lastModifier);
        number(row.lastUpdate);
        for (const Column<Row>& column : RowDescription<Row>::columns)
            column.text ? text(row.*column.text) : number(row.*column.integer);
        plain.Check(sqlite3_step(insert));
        sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
}

std::map<std::string, double>& BestTimes() {
    static std::map<std::string, double> times;
    return times;
}

// Times one run and keeps the best of its name.
template <class Work>
void Time(benchmark::State& state, const std::string& name, Work&& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    state.SetIterationTime(seconds);
    double& best = BestTimes()[name];
    best = best == 0 ? seconds : std::min(best, seconds);
}

void ImportThroughStore(benchmark::State& state) {
    for (auto _ : state) {
        const std::string path = FreshFile("import.trellis");
        Time(state, "import", [&] { Import(path); });
        Workspace::MakeCurrent(nullptr);
    }
}

void ImportPlain(benchmark::State& state) {
    Import(FreshFile("rows.trellis"));
    const auto parts = Workspace::Current()->Session().Table<PartRow>().Select({});
    const auto links = Workspace::Current()->Session().Table<LinkRow>().Select({});
    Workspace::MakeCurrent(nullptr);
    if (links.size() != linkCount)
        Fail("not all links came in");
    for (auto _ : state) {
        const std::string path = FreshFile("plain.trellis");
        Time(state, "import plain", [&] {
            StoreSession::Create(path);
            PlainDatabase plain(path);
            plain.Run("BEGIN IMMEDIATE");
            InsertPlain(plain, parts);
            InsertPlain(plain, links);
            plain.Run("COMMIT");
        });
    }
}

void MakeCategories(const std::string& path) {
    Workspace workspace(StoreSession::Create(path), "anna");
    for (int i = 0; i < changedCount; ++i) {
        CategoryRow row;
        row.configItem = ConfigItemRow::CorporateId;
        row.name = "CATEGORY " + std::to_string(i);
        workspace.Create(row);
    }
    ZOLGYRError error;
    if (!workspace.Save(error))
        Fail("first save failed");
}

void SaveThroughStore(benchmark::State& state) {
    const std::string path = FreshFile("save.trellis");
    MakeCategories(path);
    Workspace workspace(StoreSession::Open(path), "bert");
    ZOLGYRError error;
    const auto categories = workspace.Find(StoreQuery<CategoryRow>(), error);
    int round = 0;
    for (auto _ : state) {
        ++round;
        for (const auto& category : categories) {
            category->Change(&CategoryRow::description, "description " + std::to_string(round), error);
            category->Change(&CategoryRow::name, category->Row().name + "+", error);
        }
        Time(state, "save", [&] {
            if (!workspace.Save(error))
                Fail("save failed");
        });
    }
}

void SavePlain(benchmark::State& state) {
    const std::string path = FreshFile("save-plain.trellis");
    MakeCategories(path);
    const auto rows = StoreSession::Open(path)->Table<CategoryRow>().Select({});
    PlainDatabase plain(path);
    std::string sets = "version = ?, last_modifier = ?, last_update = ?";
    for (const Column<CategoryRow>& column : RowDescription<CategoryRow>::columns)
        sets += std::string(", ") + column.name + " = ?";
    sqlite3_stmt* update = plain.Prepare("UPDATE category SET " + sets + " WHERE id = ? AND version = ?");
    std::int64_t version = 1;
    for (auto _ : state) {
        const std::string description = "description " + std::to_string(version);
        const std::string suffix(static_cast<std::size_t>(version), '+');
        Time(state, "save plain", [&] {
            plain.Run("BEGIN IMMEDIATE");
            for (CategoryRow row : rows) {
                row.description = description;
                row.name += suffix;
                int at = 0;
                sqlite3_bind_int64(update, ++at, version + 1);
                sqlite3_bind_text(update, ++at, "bert", 4, nullptr);
                sqlite3_bind_int64(update, ++at, 1);
                for (const Column<CategoryRow>& column : RowDescription<CategoryRow>::columns) {
                    if (column.text)
                        sqlite3_bind_text(update, ++at, (row.*column.text).data(),
                                          static_cast<int>((row.*column.text).size()), nullptr);
                    else
                        sqlite3_bind_int64(update, ++at, row.*column.integer);
                }
                sqlite3_bind_int64(update, ++at, row.id);
                sqlite3_bind_int64(update, ++at, version);
                plain.Check(sqlite3_step(update));
                sqlite3_reset(update);
            }
            plain.Run("COMMIT");
        });
        ++version;
    }
    sqlite3_finalize(update);
}

BENCHMARK(ImportThroughStore)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK(ImportPlain)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK(SaveThroughStore)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(SavePlain)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    auto& best = BestTimes();
    for (const std::string& name : {std::string("import"), std::string("save")})
        if (best[name] > 0 && best[name + " plain"] > 0)
            std::printf("%s: %.2f times the plain rows (at most 3)\n", name.c_str(),
                        best[name] / best[name + " plain"]);
    std::filesystem::remove_all(BenchFolder());
    return 0;
}
