#pragma once

#include "support/VirtualScreen.h"

#include <chrono>
#include <deque>
#include <functional>
#include <source_location>
#include <string>
#include <vector>

class ZOLDialog;
typedef struct _WidgetRec* Widget;
typedef struct _XDisplay Display;

// ScreenUser: a person at a real screen. Starts an X server with the Motif view on it, and moves the mouse and
// the keys of that server; what a program gets are events like those of any user.
//
// Each gesture is served before its operation returns: all events that it brought have been dispatched, and what
// they changed is drawn. A gesture that brings up a blocking question returns when the question is answered, so
// what answers it is laid ready before, with WhenItIs.
class ScreenUser {
public:
    using Condition = std::function<bool()>;
    using Modifiers = std::vector<std::string>; // names of keys, such as "Shift_L" and "Control_L"
    struct Place {
        int x; // pixels of the root window
        int y;
    };
    static constexpr std::chrono::milliseconds UsualLimit{5000};

    // Aborts where server or view cannot be started. `options` are those of the view, such as "-fontSize", "14".
    // One at a time.
    explicit ScreenUser(std::vector<std::string> options = {});
    ~ScreenUser();
    ScreenUser(const ScreenUser&) = delete;
    ScreenUser& operator=(const ScreenUser&) = delete;

    const std::string& GetDisplay() const { return _screen.GetDisplay(); }

    // What shows a dialog; null, and the test fails, when nothing does. `part` names a widget inside it.
    Widget NativeOf(ZOLDialog& dialog);
    Widget PartOf(ZOLDialog& dialog, const char* part);
    // Where something stands. The test fails when it is not on the screen.
    Place MiddleOf(Widget widget);
    Place MiddleOf(ZOLDialog& dialog);
    // Pixels from the top left corner; below 0 from the right and the bottom end.
    Place PlaceIn(ZOLDialog& dialog, int x, int y);

    void MoveTo(Place place);
    void MoveTo(ZOLDialog& dialog) { MoveTo(MiddleOf(dialog)); }
    void PressButton(unsigned button = 1);
    void ReleaseButton(unsigned button = 1);
    // A click never makes a double click with the one before.
    void Click(Place place, unsigned button = 1, const Modifiers& modifiers = {});
    void Click(ZOLDialog& dialog, unsigned button = 1, const Modifiers& modifiers = {}) {
        Click(MiddleOf(dialog), button, modifiers);
    }
    // Waits until the next click, wherever it is, is none of the last one: a menu that a click brought up takes what
    // follows at once for a part of that click.
    void PauseBetweenClicks();
    void DoubleClick(Place place);
    void DoubleClick(ZOLDialog& dialog) { DoubleClick(MiddleOf(dialog)); }
    void Drag(Place from, Place to, unsigned button = 1);
    // Steps of the wheel, downwards when above 0.
    void Wheel(Place place, int steps, const Modifiers& modifiers = {});

    // What a window manager does when its close box is clicked.
    void PressCloseBox(ZOLDialog& window);

    // Whether a key goes up before the modifiers that are held with it, or after them, as in a quick hand.
    enum class Release { KeyFirst, KeyLast };
    // A key of the server's keyboard by its name, such as "Return" or "a".
    void Press(const std::string& key, const Modifiers& modifiers = {}, Release release = Release::KeyFirst);
    // Key by key. ASCII alone; a line feed is Return.
    void Type(const std::string& text);

    // Serves the windows until that is so; the test fails after the limit.
    void WaitUntil(const Condition& isSo, std::chrono::milliseconds limit = UsualLimit,
                   std::source_location where = std::source_location::current());
    // Serves all that was sent before.
    void Settle();
    // Acts once, in some turn of the loop, when that is so and all events are served, also while a call waits for
    // an answer. Several are laid ready in their order. The test fails when it has not been so within the usual
    // limit; the question that waits then is closed.
    void WhenItIs(Condition isSo, std::function<void()> act,
                  std::source_location where = std::source_location::current());
    // Drops what is laid ready and was not done.
    void Forget() { _deeds.clear(); }

private:
    using Clock = std::chrono::steady_clock;
    struct Wait {
        Condition isSo;
        Clock::time_point end;
        bool isOver = false;
    };
    struct Deed {
        Condition isSo;
        std::function<void()> act;
        Clock::time_point end;
        std::source_location where;
    };

    static char IdleCB(void* self);
    void Idle();
    bool ServeDeed();
    static bool HasMoreToServe();
    static void CloseQuestion(const char* reason);
    bool RunUntil(const Condition& isSo, std::chrono::milliseconds limit);
    void PauseNear(Place place);
    void SendButton(unsigned button, bool isDown);
    void SendKey(const std::string& key, bool isDown);
    void SendKeys(const Modifiers& keys, bool isDown);
    void SendCharacter(char character);

    VirtualScreen _screen;
    Display* _hand; // a connection of its own, on which nothing but gestures travel
    std::vector<Wait*> _waits;
    std::deque<Deed> _deeds;
    Clock::time_point _lastClick;
    Place _lastPlace{-1, -1};
};
