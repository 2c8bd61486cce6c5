#include "support/Program.h"
#include "support/TemporaryFolder.h"
#include "support/VirtualScreen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <future>
#include <memory>
#include <thread>

#include <X11/Xlib.h> // its words would get in the way of the others

namespace {

using trellis::test::Program;
using trellis::test::ProgramResult;
using trellis::test::TemporaryFolder;

// Whether a window of some size stands on the screen; false after ten seconds.
bool WaitForWindow(const std::string& name) {
    Display* display = XOpenDisplay(name.c_str());
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    bool isThere = false;
    while (!isThere && std::chrono::steady_clock::now() < end) {
        Window root = 0;
        Window parent = 0;
        Window* windows = nullptr;
        unsigned count = 0;
        XQueryTree(display, DefaultRootWindow(display), &root, &parent, &windows, &count);
        for (unsigned i = 0; i < count && !isThere; ++i) {
            XWindowAttributes attributes;
            isThere = XGetWindowAttributes(display, windows[i], &attributes) && attributes.width > 100 &&
                      attributes.map_state == IsViewable;
        }
        XFree(windows);
        std::this_thread::yield();
    }
    XCloseDisplay(display);
    return isThere;
}

TEST(LostDisplayTest, TheProgramTellsInOneLineAndEndsWithTheDatabaseWhole) {
    const TemporaryFolder folder;
    const std::string file = folder.Path("a.db");
    Program program;
    ASSERT_EQ(program.Run({"--database", file, "db", "create"}).exitCode, 0);

    auto screen = std::make_unique<VirtualScreen>();
    auto run = std::async(std::launch::async, [&, display = screen->GetDisplay()] {
        return program.Run(
            {"--database", file, "--display", display, "--font", "No Such Font", "--font-size", "12"});
    });
    EXPECT_TRUE(WaitForWindow(screen->GetDisplay()));
    screen.reset();

    const ProgramResult result = run.get();
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_NE(result.messages.find("60607: "), std::string::npos) << result.messages;
    EXPECT_EQ(std::count(result.messages.begin(), result.messages.end(), '\n'), 1) << result.messages;
    EXPECT_EQ(program.Run({"--database", file, "db", "check"}).exitCode, 0);
}

TEST(LostDisplayTest, ADisplayThatIsNotThereIsToldWithTheWaysToWorkWithoutOne) {
    const TemporaryFolder folder;
    const Program program;
    for (const std::vector<std::string>& arguments :
         std::vector<std::vector<std::string>>{{}, {"--display", ":9876"}}) {
        const ProgramResult result = program.Run(arguments);
        EXPECT_EQ(result.exitCode, 3);
        EXPECT_NE(result.messages.find("script"), std::string::npos);
        EXPECT_EQ(std::count(result.messages.begin(), result.messages.end(), '\n'), 1) << result.messages;
    }
}

} // namespace
