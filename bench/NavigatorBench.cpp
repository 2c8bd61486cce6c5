// Opening the navigator on 100,000 links, and opening a part that holds 5,000 others, without a display: what is read,
// laid out and written into nodes. The bound is what a user takes as at once.
#include "model/DatabaseSession.h"
#include "model/StructureImport.h"
#include "navigator/NavigatorWindow.h"
#include "toolkit/CallbackScope.h"
#include "toolkit/ZOLUserDriver.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace {

constexpr int LinkCount = 100000;
constexpr int WideCount = 5000;

// TOP holds 50 parts of 40, each used in turn by those of a third level; WIDE holds 5,000.
std::string StructureText() {
    std::string rows = "parent,child,link_id,link_name,position\n";
    int count = 0;
    const auto add = [&](const std::string& parent, const std::string& child) {
        const std::string number = std::to_string(++count);
        rows += parent + "," + child + ",L" + number + ",place " + number + "," + number + "\n";
    };
    for (int i = 0; i < WideCount; ++i)
        add("WIDE", "W" + std::to_string(i));
    for (int i = 0; i < 50; ++i)
        add("TOP", "A" + std::to_string(i));
    for (int i = 0; i < 2000; ++i)
        add("A" + std::to_string(i % 50), "B" + std::to_string(i));
    for (int i = 0; count < LinkCount; ++i)
        add("B" + std::to_string(i % 2000), "C" + std::to_string((i * 7 + i / 2000) % 20000));
    return rows;
}

const std::string& Database() {
    static const std::string path = [] {
        const auto file = std::filesystem::temp_directory_path() / "trellis-bench" / "navigator.db";
        std::filesystem::create_directories(file.parent_path());
        for (const char* ending : {"", "-wal", "-shm"})
            std::filesystem::remove(file.string() + ending);
        ZOLGYRError error;
        trellis::ImportReport report;
        trellis::DatabaseSession::Create(file.string(), error);
        trellis::StructureImport::ReadText(StructureText(), trellis::StructureImport::Form::Csv, "bench",
                                           report, error);
        trellis::DatabaseSession::Close();
        if (error.GetCode() != 0) {
            std::fprintf(stderr, "navigator bench: import failed with %d\n", error.GetCode());
            std::exit(1);
        }
        return file.string();
    }();
    return path;
}

class OpenNavigator {
public:
    OpenNavigator() : _session(trellis::HostOptions{Database(), {}, false, "", "", ""}) {
        _session.OpenDatabase();
        _window = new trellis::NavigatorWindow(_session);
        _window->SetVisibility(ZOLShown);
    }
    ~OpenNavigator() {
        _window->RequestDelayedDestruction();
        trellis::CallbackScope::FreeGivenUp();
    }
    void Click(const char* part) {
        auto* graph = static_cast<ZOLGraphViewer*>(ZOLUserDriver::Find(_window, "Structure"));
        ZOLUserDriver::Click(graph, ZOLUserDriver::Node(graph, {part}));
        if (!ZOLUserDriver::Node(graph, {part}))
            std::exit(1);
    }

private:
    trellis::HostSession _session;
    trellis::NavigatorWindow* _window;
};

void OpeningOn100000Links(benchmark::State& state) {
    Database();
    for (auto _ : state) {
        OpenNavigator navigator;
        navigator.Click("TOP");
    }
}
BENCHMARK(OpeningOn100000Links)->Unit(benchmark::kMillisecond);

void OpeningAPartOf5000Children(benchmark::State& state) {
    Database();
    for (auto _ : state) {
        state.PauseTiming();
        auto navigator = std::make_unique<OpenNavigator>();
        state.ResumeTiming();
        navigator->Click("WIDE");
        state.PauseTiming();
        navigator.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(OpeningAPartOf5000Children)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
