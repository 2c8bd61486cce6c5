#include "support/ScreenUser.h"

#include "toolkit/MotifToolkit.h"
#include "toolkit/ToolkitView.h"
#include "toolkit/ZOLDialog.h"
#include "toolkit/ZOLUserDriver.h"
#include "values/ZOLGYRError.h"

#include <gtest/gtest.h>

#include <X11/Intrinsic.h>
#include <X11/StringDefs.h>
#include <X11/XKBlib.h>
#include <X11/extensions/XTest.h>

#include <cstdio>
#include <cstdlib>

namespace {

trellis::ToolkitView& View() {
    return *trellis::ToolkitView::Current();
}

XtAppContext Context() {
    return static_cast<XtAppContext>(View().GetNativeApplication());
}

Display* ViewDisplay() {
    Display** displays = nullptr;
    Cardinal count = 0;
    XtGetDisplays(Context(), &displays, &count);
    Display* display = displays[0];
    XtFree(reinterpret_cast<char*>(displays));
    return display;
}

std::string OnScreen() {
    const ZOLDialog* top = ZOLUserDriver::Top();
    return top ? "on the screen:\n" + ZOLUserDriver::Describe(top) : "no window is shown";
}

ScreenUser::Place PlaceOn(Widget widget, int x, int y) {
    int rootX = 0;
    int rootY = 0;
    Window child = 0;
    Display* display = XtDisplayOfObject(widget);
    if (!XtIsWidget(widget)) { // it stands in the window of its parent
        Position left = 0;
        Position top = 0;
        XtVaGetValues(widget, XtNx, &left, XtNy, &top, nullptr);
        x += left;
        y += top;
    }
    XTranslateCoordinates(display, XtWindowOfObject(widget), XDefaultRootWindow(display), x, y, &rootX,
                          &rootY, &child);
    EXPECT_TRUE(rootX >= 0 && rootY >= 0 && rootX < XDisplayWidth(display, 0) &&
                rootY < XDisplayHeight(display, 0))
        << "outside the screen: " << XtName(widget) << " at " << rootX << ", " << rootY;
    return {rootX, rootY};
}

bool IsThere(Widget widget, const char* name) {
    const bool isThere = widget && XtIsRealized(widget);
    EXPECT_TRUE(isThere) << "not on the screen: " << name << "; " << OnScreen();
    return isThere;
}

} // namespace

ScreenUser::ScreenUser(std::vector<std::string> options) {
    std::vector<std::string> words = {"test", "-display", _screen.GetDisplay()};
    words.insert(words.end(), options.begin(), options.end());
    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    int count = static_cast<int>(words.size());
    ZOLGYRError error;
    _hand = XOpenDisplay(_screen.GetDisplay().c_str());
    if (!_hand || !trellis::MotifToolkit::Start(count, arguments.data(), error) || count != 1) {
        std::fprintf(stderr, "the view cannot be started (%d), or left an option\n", error.GetCode());
        std::abort();
    }
}

ScreenUser::~ScreenUser() {
    EXPECT_TRUE(_deeds.empty()) << "something was laid ready, and it never came to that";
    trellis::MotifToolkit::Stop();
    XCloseDisplay(_hand);
}

Widget ScreenUser::NativeOf(ZOLDialog& dialog) {
    View().UpdateDisplay();
    auto* widget = static_cast<Widget>(View().GetNativeFather(dialog));
    return IsThere(widget, dialog.GetName().ConvertToChar()) ? widget : nullptr;
}

Widget ScreenUser::PartOf(ZOLDialog& dialog, const char* part) {
    Widget whole = NativeOf(dialog);
    Widget widget = whole ? XtNameToWidget(whole, part) : nullptr;
    return IsThere(widget, part) ? widget : nullptr;
}

ScreenUser::Place ScreenUser::MiddleOf(Widget widget) {
    Dimension width = 0;
    Dimension height = 0;
    if (!widget)
        return {0, 0};
    XtVaGetValues(widget, XtNwidth, &width, XtNheight, &height, nullptr);
    return PlaceOn(widget, width / 2, height / 2);
}

ScreenUser::Place ScreenUser::MiddleOf(ZOLDialog& dialog) {
    return MiddleOf(NativeOf(dialog));
}

ScreenUser::Place ScreenUser::PlaceIn(ZOLDialog& dialog, int x, int y) {
    Widget widget = NativeOf(dialog);
    Dimension width = 0;
    Dimension height = 0;
    if (!widget)
        return {0, 0};
    XtVaGetValues(widget, XtNwidth, &width, XtNheight, &height, nullptr);
    return PlaceOn(widget, x < 0 ? width + x : x, y < 0 ? height + y : y);
}

void ScreenUser::SendButton(unsigned button, bool isDown) {
    XTestFakeButtonEvent(_hand, button, isDown ? True : False, CurrentTime);
    XSync(_hand, False);
}

void ScreenUser::SendKey(const std::string& key, bool isDown) {
    const KeyCode code = XKeysymToKeycode(_hand, XStringToKeysym(key.c_str()));
    EXPECT_NE(code, 0) << "no key of that name: " << key;
    XTestFakeKeyEvent(_hand, code, isDown ? True : False, CurrentTime);
    XSync(_hand, False);
}

void ScreenUser::SendKeys(const Modifiers& keys, bool isDown) {
    for (const std::string& key : keys)
        SendKey(key, isDown);
}

void ScreenUser::MoveTo(Place place) {
    XTestFakeMotionEvent(_hand, -1, place.x, place.y, CurrentTime);
    XSync(_hand, False);
    Settle();
}

void ScreenUser::PressButton(unsigned button) {
    SendButton(button, true);
    Settle();
}

void ScreenUser::ReleaseButton(unsigned button) {
    SendButton(button, false);
    Settle();
}

void ScreenUser::PauseBetweenClicks() {
    const std::chrono::milliseconds pause(XtGetMultiClickTime(ViewDisplay()));
    RunUntil([&] { return Clock::now() > _lastClick + pause; }, UsualLimit);
}

// Clicks apart from each other are never taken for one.
void ScreenUser::PauseNear(Place place) {
    constexpr int Reach = 20; // pixels
    const bool isNear = std::abs(place.x - _lastPlace.x) < Reach && std::abs(place.y - _lastPlace.y) < Reach;
    _lastPlace = place;
    if (isNear)
        PauseBetweenClicks();
}

void ScreenUser::Click(Place place, unsigned button, const Modifiers& modifiers) {
    PauseNear(place);
    MoveTo(place);
    SendKeys(modifiers, true);
    SendButton(button, true);
    SendButton(button, false);
    SendKeys(modifiers, false);
    _lastClick = Clock::now();
    Settle();
}

void ScreenUser::DoubleClick(Place place) {
    PauseNear(place);
    MoveTo(place);
    for (const bool isDown : {true, false, true, false})
        SendButton(1, isDown);
    _lastClick = Clock::now();
    Settle();
}

void ScreenUser::Drag(Place from, Place to, unsigned button) {
    constexpr int Steps = 4;
    PauseNear(from);
    MoveTo(from);
    PressButton(button);
    for (int step = 1; step <= Steps; ++step)
        MoveTo({from.x + (to.x - from.x) * step / Steps, from.y + (to.y - from.y) * step / Steps});
    _lastClick = Clock::now();
    ReleaseButton(button);
}

void ScreenUser::Wheel(Place place, int steps, const Modifiers& modifiers) {
    constexpr unsigned WheelUp = 4;
    constexpr unsigned WheelDown = 5;
    const unsigned button = steps > 0 ? WheelDown : WheelUp;
    MoveTo(place);
    SendKeys(modifiers, true);
    for (int step = 0; step < std::abs(steps); ++step) {
        SendButton(button, true);
        SendButton(button, false);
    }
    SendKeys(modifiers, false);
    Settle();
}

void ScreenUser::PressCloseBox(ZOLDialog& window) {
    Widget shell = NativeOf(window);
    if (!shell)
        return;
    XEvent event = {};
    event.xclient.type = ClientMessage;
    event.xclient.window = XtWindow(shell);
    event.xclient.message_type = XInternAtom(_hand, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(XInternAtom(_hand, "WM_DELETE_WINDOW", False));
    XSendEvent(_hand, event.xclient.window, False, NoEventMask, &event);
    XSync(_hand, False);
    Settle();
}

void ScreenUser::Press(const std::string& key, const Modifiers& modifiers, Release release) {
    SendKeys(modifiers, true);
    SendKey(key, true);
    if (release == Release::KeyFirst)
        SendKey(key, false);
    else
        Settle(); // what the key opened is there when it goes up
    SendKeys(modifiers, false);
    if (release == Release::KeyLast)
        SendKey(key, false);
    Settle();
}

void ScreenUser::SendCharacter(char character) {
    const auto symbol = static_cast<KeySym>(static_cast<unsigned char>(character));
    const KeyCode code = XKeysymToKeycode(_hand, symbol);
    EXPECT_NE(code, 0) << "no key for: " << character;
    const bool isShifted = XkbKeycodeToKeysym(_hand, code, 0, 0) != symbol;
    const std::string key = XKeysymToString(XkbKeycodeToKeysym(_hand, code, 0, 0));
    Press(key, isShifted ? Modifiers{"Shift_L"} : Modifiers{});
}

void ScreenUser::Type(const std::string& text) {
    for (const char character : text)
        character == '\n' ? Press("Return") : SendCharacter(character);
}

void ScreenUser::WaitUntil(const Condition& isSo, std::chrono::milliseconds limit,
                           std::source_location where) {
    if (!RunUntil(isSo, limit))
        ADD_FAILURE_AT(where.file_name(), static_cast<int>(where.line()))
            << "not so after " << limit.count() << " ms; " << OnScreen();
}

void ScreenUser::Settle() {
    EXPECT_TRUE(RunUntil([] { return true; }, UsualLimit))
        << "the windows do not come to rest; " << OnScreen();
}

void ScreenUser::WhenItIs(Condition isSo, std::function<void()> act, std::source_location where) {
    _deeds.push_back({std::move(isSo), std::move(act), Clock::now() + UsualLimit, where});
    XtAppAddWorkProc(Context(), &ScreenUser::IdleCB, this);
}

// The loop returns from an idle turn, so that all that was sent is served; also by itself, when no window is left or
// when a question inside it was answered.
bool ScreenUser::RunUntil(const Condition& isSo, std::chrono::milliseconds limit) {
    Wait wait{isSo, Clock::now() + limit};
    _waits.push_back(&wait);
    const XtWorkProcId work = XtAppAddWorkProc(Context(), &ScreenUser::IdleCB, this);
    do {
        trellis::MotifToolkit::Run();
    } while (HasMoreToServe() || !(isSo() || Clock::now() > wait.end));
    XtRemoveWorkProc(work);
    _waits.pop_back();
    return isSo();
}

bool ScreenUser::HasMoreToServe() {
    View().UpdateDisplay();
    XSync(ViewDisplay(), False);
    return ZOLUserDriver::Top() && XEventsQueued(ViewDisplay(), QueuedAlready) > 0;
}

// Called by the loop when no event waits. Of several such functions the toolkit serves the last one alone, so each
// does the work of all.
char ScreenUser::IdleCB(void* self) {
    auto* user = static_cast<ScreenUser*>(self);
    user->Idle();
    return user->_waits.empty() && user->_deeds.empty() ? True : False;
}

// The loop of a wait that was told to return and did not stands still under a question.
void ScreenUser::Idle() {
    if (HasMoreToServe() || ServeDeed() || _waits.empty())
        return;
    Wait& wait = *_waits.back();
    const bool isLate = Clock::now() > wait.end;
    if (wait.isOver && isLate && _deeds.empty())
        CloseQuestion("a question waits and nobody answers");
    if (!wait.isSo() && !isLate)
        return;
    wait.isOver = true;
    trellis::MotifToolkit::Quit();
}

bool ScreenUser::ServeDeed() {
    if (_deeds.empty())
        return false;
    const bool isSo = _deeds.front().isSo();
    if (!isSo && Clock::now() <= _deeds.front().end)
        return false;
    const Deed deed = std::move(_deeds.front());
    _deeds.pop_front();
    if (isSo) {
        deed.act();
        // All events are served; a question that was answered looks up only when something more happens.
        XtAppAddTimeOut(
            Context(), 0, [](XtPointer, XtIntervalId*) {}, nullptr);
        return true;
    }
    ADD_FAILURE_AT(deed.where.file_name(), static_cast<int>(deed.where.line())) << "it never came to that";
    CloseQuestion("not answered");
    return true;
}

void ScreenUser::CloseQuestion(const char* reason) {
    ADD_FAILURE() << reason << "; " << OnScreen();
    ZOLUserDriver::CloseWindow(ZOLUserDriver::Top());
}
