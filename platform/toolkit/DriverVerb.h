#pragma once

#include "toolkit/CallbackScope.h"
#include "toolkit/ZOLUserDriver.h"
#include "toolkit/ZOLUserResult.h"

#include <exception>
#include <string>

class ZOLDlgEditor;

namespace trellis {

// DriverVerb: what all verbs of the driver do around the one thing that each does: test the pointer and the
// gate, leave the editor that the user was typing in, close a menu left open, act inside a callback scope,
// and turn a refusal into an exception when no callback is under way any more.
class DriverVerb {
public:
    // `verb` is the word for a refusal, as in "cannot press".
    DriverVerb(const char* verb, const ZOLDialog* dialog);

    // The action keeps what the user types unconfirmed.
    DriverVerb& KeepEditor() {
        _leavesEditor = false;
        return *this;
    }
    DriverVerb& KeepMenu() {
        _closesMenu = false;
        return *this;
    }

    // `act` gets the dialog as its class and answers a ZOLUserResult. Refused when it is of another class.
    template <class Class, class Act>
    void On(const Act& act) {
        Class* target = dynamic_cast<Class*>(_dialog);
        if (!target)
            Refuse("it is of another kind");
        ZOLUserResult result = ZOLUserResult::Done;
        {
            const CallbackScope scope;
            result = Prepare();
            if (result == ZOLUserResult::Done)
                result = act(*target);
        }
        Finish(result);
    }

    [[noreturn]] void Refuse(const std::string& reason) const;

    // From now on the user is typing in this editor.
    static void EnterEditor(ZOLDlgEditor& editor);

private:
    ZOLUserResult Prepare();
    void Finish(ZOLUserResult result) const;

    const char* _verb;
    ZOLDialog* _dialog;
    std::string _name;
    bool _leavesEditor = true;
    bool _closesMenu = true;
};

} // namespace trellis
