// GetConfigurableObject on 1,000 configurable parts, cold and warm, against 1,000 selects of the same rows
// that are prepared once through SQLite's C interface. Both sides read the same file. The last lines give the
// ratios.
#include "model/DatabaseSession.h"
#include "model/PartQuery.h"
#include "model/StructureImport.h"
#include "service/ZOLQRDCfgManager.h"
#include "values/ZOLGYRError.h"

#include <sqlite3.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

using namespace trellis;

namespace {

constexpr int PartCount = 1000;
constexpr int Rounds = 15;

[[noreturn]] void Fail(const std::string& what) {
    std::fprintf(stderr, "service bench: %s\n", what.c_str());
    std::exit(1);
}

void Expect(bool holds, const ZOLGYRError& error) {
    if (holds && error.GetCode() == 0)
        return;
    ZOLUnicodeString message;
    error.GetLongMsg(message);
    Fail(message.Bytes());
}

std::string FreshFile() {
    const auto folder = std::filesystem::temp_directory_path() / "trellis-bench";
    std::filesystem::create_directories(folder);
    const std::string path = (folder / "service.trellis").string();
    for (const char* ending : {"", "-wal", "-shm"})
        std::filesystem::remove(path + ending);
    return path;
}

// Microseconds of the fastest of some rounds; `prepare` is not counted.
double Fastest(const std::function<void()>& prepare, const std::function<void()>& work) {
    double fastest = 1e12;
    for (int round = 0; round < Rounds; ++round) {
        prepare();
        const auto begin = std::chrono::steady_clock::now();
        work();
        const std::chrono::duration<double, std::micro> took = std::chrono::steady_clock::now() - begin;
        fastest = std::min(fastest, took.count());
    }
    return fastest;
}

std::vector<_SEQUENCE_octet> MakeDatabase(const std::string& path) {
    ZOLGYRError error;
    Expect(DatabaseSession::Create(path, error), error);
    std::string rows = "record,id\n";
    for (int i = 0; i < PartCount; ++i)
        rows += "part,P" + std::to_string(i) + "\n";
    ImportReport report;
    Expect(StructureImport::ReadText(rows, StructureImport::Form::Csv, "bench", report, error), error);
    ZOLListValZOLDMInstance parts;
    PartQuery::ByNameContaining("", parts, error);
    std::vector<_SEQUENCE_octet> identifiers;
    ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    for (const ZOLDMInstance& part : parts) {
        manager->SetConfigurable(part, error);
        identifiers.push_back(part.GetUUId());
    }
    manager->Save(error);
    Expect(identifiers.size() == PartCount, error);
    return identifiers;
}

void AskService(const std::vector<_SEQUENCE_octet>& identifiers) {
    ZOLGYRError error;
    const ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    for (const _SEQUENCE_octet& identifier : identifiers) {
        ZOLQRDConfigurableObject object;
        manager->GetConfigurableObject(identifier, object, error);
    }
    Expect(true, error);
}

void AskSqlite(sqlite3_stmt* select, const std::vector<std::string>& identifiers) {
    for (const std::string& identifier : identifiers) {
        sqlite3_bind_text(select, 1, identifier.data(), static_cast<int>(identifier.size()), SQLITE_STATIC);
        if (sqlite3_step(select) != SQLITE_ROW || !sqlite3_column_text(select, 4))
            Fail("a select found no row");
        sqlite3_reset(select);
    }
}

} // namespace

int main() {
    const std::string path = FreshFile();
    const std::vector<_SEQUENCE_octet> identifiers = MakeDatabase(path);
    std::vector<std::string> texts;
    for (const _SEQUENCE_octet& identifier : identifiers)
        texts.push_back(identifier.Text());

    const auto reopen = [&] {
        ZOLGYRError error;
        Expect(DatabaseSession::Open(path, error), error);
        ZOLQRDCfgManager::CurrentCfgManager(error);
    };
    const double cold = Fastest(reopen, [&] { AskService(identifiers); });
    const double warm = Fastest([] {}, [&] { AskService(identifiers); });
    DatabaseSession::Close();

    sqlite3* database = nullptr;
    sqlite3_stmt* select = nullptr;
    if (sqlite3_open(path.c_str(), &database) != SQLITE_OK ||
        sqlite3_prepare_v2(
            database,
            "SELECT id, version, last_modifier, last_update, part_uuid, type_mask, default_handler"
            " FROM configurable_part WHERE part_uuid = ?",
            -1, &select, nullptr) != SQLITE_OK)
        Fail(sqlite3_errmsg(database));
    const double selects = Fastest([] {}, [&] { AskSqlite(select, texts); });
    sqlite3_finalize(select);
    sqlite3_close(database);

    std::printf("1,000 prepared selects          %10.0f us\n", selects);
    std::printf("GetConfigurableObject, cold     %10.0f us  %6.2f times (bound 2)\n", cold, cold / selects);
    std::printf("GetConfigurableObject, warm     %10.0f us  %6.2f times (bound 0.1)\n", warm, warm / selects);
    return cold <= 2 * selects && warm <= selects / 10 ? 0 : 1;
}
