#pragma once

#include "toolkit/WeakCommand.h"
#include "toolkit/ZOLEventSubscriber.h"
#include "toolkit/ZOLNotification.h"
#include "values/ZOLString.h"
#include "values/ZOLUnicodeString.h"

#include <memory>

namespace trellis {
class DestructionQueue;
}

// ZOLCommand: an object that takes part in notifications. Its father is the next stop of a notification that
// it does not take; that tree is apart from the tree of dialogs.
//
// The toolkit itself calls none of Reset, Cancel, SaveState and RestoreState: panels give these names to
// operations of their own.
class TRELLIS_API ZOLCommand : public ZOLEventSubscriber {
    ZOL_META_OBJECT(ZOLCommand, ZOLEventSubscriber)
public:
    ~ZOLCommand() override;

    virtual const ZOLString& GetName() const;
    virtual void SetName(const ZOLString& name);
    // The door through which a notification comes in: calls the subscriptions of this command on that sender
    // and notification, in the order in which they were made. 1 when there was one, 0 when the climb goes on.
    // Those made meanwhile are not called, those ended meanwhile neither; one of a command on itself that is
    // being served is passed over. Exceptions of callbacks end here: they are traced and shown as 60101.
    virtual int AnalyseNotification(ZOLCommand* sender, ZOLNotification* notification);
    // A command takes notifications from its construction on; while it is put to rest they pass it by.
    virtual void Activate();
    virtual void Desactivate();
    // Goes back to the state saved last and ends the command.
    virtual void Cancel();
    // Offers an object to this command and its fathers: 1 when one took it. A plain command takes none.
    virtual int SendCommandSpecificObject(void* object);
    // What the user is asked for while the command runs.
    virtual void SetPrompt(const ZOLUnicodeString& prompt);
    virtual const ZOLUnicodeString& GetPrompt() const;
    // What a status line shows: the own prompt while the command runs, else that of the nearest father that
    // runs; empty when none does.
    virtual ZOLUnicodeString GetStatusPrompt() const;
    // From here until EndCommand the command runs. Nested begins count once.
    virtual void BeginCommand();
    virtual void EndCommand();
    // Back to the state of a new command: active, not running, no prompt, nothing saved.
    virtual void Reset();
    // Takes back one step of whoever keeps the steps (see GetGlobalUndo): 1 when there was one.
    virtual int UndoCommand();
    // The nearest command, this one or a father, that keeps steps to take back; null when none does.
    virtual ZOLCommand* GetGlobalUndo();
    // Keeps the present state (active, running, prompt) for RestoreState; the state saved before is replaced.
    // RestoreState without a saved state changes nothing.
    virtual void SaveState();
    virtual void RestoreState();

    // From now on `method` of this command is called with (sender, notification, data) when that sender sends
    // that notification and no command before this one took it. The second form means all notifications of a
    // class. The same subscription twice counts once; null sender, notification or method is ignored.
    void AddAnalyseNotificationCB(ZOLCommand* sender, ZOLNotification* notification,
                                  ZOLNotificationMethod method, void* data = nullptr);
    void AddAnalyseNotificationCB(ZOLCommand* sender, const char* className, ZOLNotificationMethod method,
                                  void* data = nullptr);
    // Ends all subscriptions of this command on that pair.
    void RemoveAnalyseNotificationCB(ZOLCommand* sender, ZOLNotification* notification);
    void RemoveAnalyseNotificationCB(ZOLCommand* sender, const char* className);

    // Sends as this command: to the target, then to its fathers, until the first that takes it. Without a
    // target it starts at the father of this command. 1 when some command took it. One that is being given up
    // may still send, but takes nothing.
    int SendNotification(ZOLCommand* target, ZOLNotification* notification);

    // The next stop of notifications; not owned, forgotten when it is destroyed. To make a command its own
    // ancestor is a breach.
    ZOLCommand* GetFather() const { return _father.Get(); }
    void SetFather(ZOLCommand* father);

    // The command is destroyed when the outermost callback has returned (see trellis::CallbackScope). From
    // the call on it takes nothing; a dialog is hidden at once and its children go the same way. Asking twice
    // is asking once.
    void RequestDelayedDestruction();
    int IsBeingDestroyed() const { return _isBeingDestroyed ? 1 : 0; }
    int IsActive() const { return _state.isActive ? 1 : 0; }
    int IsRunning() const { return _state.isRunning ? 1 : 0; }

protected:
    // `father` may be null.
    explicit ZOLCommand(ZOLCommand* father = nullptr, const ZOLString& name = ZOLString());

    // What happens at once when the command is given up.
    virtual void GiveUp();
    // Ends the life of a command that is given up: a stored reference of somebody else may keep it.
    virtual void FreeGivenUp();

private:
    friend class trellis::DestructionQueue;
    friend class trellis::WeakCommand;

    struct State {
        bool isActive = true;
        bool isRunning = false;
        ZOLUnicodeString prompt;
    };

    ZOLString _name;
    trellis::WeakCommand _father;
    State _state;
    std::unique_ptr<State> _savedState;
    bool _isBeingDestroyed = false;
    std::shared_ptr<ZOLCommand*> _self; // made when the first weak pointer is
};
