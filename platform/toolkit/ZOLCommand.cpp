#include "toolkit/ZOLCommand.h"

#include "toolkit/CallbackScope.h"
#include "toolkit/DestructionQueue.h"
#include "toolkit/EscapedException.h"
#include "toolkit/ZOLCallbackManager.h"
#include "values/ContractBreach.h"

namespace {

// Counts a subscription as being served, also when its callback throws.
class ServingScope {
public:
    explicit ServingScope(trellis::SubscriptionEntry& entry) : _entry(entry) { ++_entry.served; }
    ~ServingScope() { --_entry.served; }
    ServingScope(const ServingScope&) = delete;
    ServingScope& operator=(const ServingScope&) = delete;

private:
    trellis::SubscriptionEntry& _entry;
};

} // namespace

ZOLCommand::ZOLCommand(ZOLCommand* father, const ZOLString& name) : _name(name), _father(father) {}

ZOLCommand::~ZOLCommand() = default;

const ZOLString& ZOLCommand::GetName() const {
    return _name;
}

void ZOLCommand::SetName(const ZOLString& name) {
    _name = name;
}

int ZOLCommand::AnalyseNotification(ZOLCommand* sender, ZOLNotification* notification) {
    if (!sender || !notification || !_state.isActive || _isBeingDestroyed)
        return 0;

    const trellis::CallbackScope scope;
    // A command that passes a notification on to itself means its fathers.
    const bool isOwn = sender == this;
    int taken = 0;
    for (const auto& entry : GetCallbackManager()->Collect(sender, *notification)) {
        if (entry->isEnded || (isOwn && entry->served > 0))
            continue;
        taken = 1;
        const ServingScope serving(*entry);
        trellis::GuardCallback([&] {
            const ZOLSubscription& subscription = entry->subscription;
            (this->*subscription.method)(sender, notification, subscription.data);
        });
    }
    return taken;
}

void ZOLCommand::Activate() {
    _state.isActive = true;
}

void ZOLCommand::Desactivate() {
    _state.isActive = false;
}

void ZOLCommand::Cancel() {
    RestoreState();
    EndCommand();
}

int ZOLCommand::SendCommandSpecificObject(void* object) {
    ZOLCommand* father = GetFather();
    return father ? father->SendCommandSpecificObject(object) : 0;
}

void ZOLCommand::SetPrompt(const ZOLUnicodeString& prompt) {
    _state.prompt = prompt;
}

const ZOLUnicodeString& ZOLCommand::GetPrompt() const {
    return _state.prompt;
}

ZOLUnicodeString ZOLCommand::GetStatusPrompt() const {
    if (_state.isRunning)
        return GetPrompt();
    const ZOLCommand* father = GetFather();
    return father ? father->GetStatusPrompt() : ZOLUnicodeString();
}

void ZOLCommand::BeginCommand() {
    _state.isRunning = true;
}

void ZOLCommand::EndCommand() {
    _state.isRunning = false;
}

void ZOLCommand::Reset() {
    _state = State();
    _savedState.reset();
}

int ZOLCommand::UndoCommand() {
    ZOLCommand* keeper = GetGlobalUndo();
    return keeper && keeper != this ? keeper->UndoCommand() : 0;
}

ZOLCommand* ZOLCommand::GetGlobalUndo() {
    ZOLCommand* father = GetFather();
    return father ? father->GetGlobalUndo() : nullptr;
}

void ZOLCommand::SaveState() {
    _savedState = std::make_unique<State>(_state);
}

void ZOLCommand::RestoreState() {
    if (_savedState)
        _state = *_savedState;
}

void ZOLCommand::AddAnalyseNotificationCB(ZOLCommand* sender, ZOLNotification* notification,
                                          ZOLNotificationMethod method, void* data) {
    AddSubscription(sender, notification, method, data);
}

void ZOLCommand::AddAnalyseNotificationCB(ZOLCommand* sender, const char* className,
                                          ZOLNotificationMethod method, void* data) {
    AddSubscription(sender, className, method, data);
}

void ZOLCommand::RemoveAnalyseNotificationCB(ZOLCommand* sender, ZOLNotification* notification) {
    RemoveSubscriptionsOn(sender, notification);
}

void ZOLCommand::RemoveAnalyseNotificationCB(ZOLCommand* sender, const char* className) {
    RemoveSubscriptionsOn(sender, className);
}

int ZOLCommand::SendNotification(ZOLCommand* target, ZOLNotification* notification) {
    if (!notification)
        return 0;
    const trellis::CallbackScope scope;
    trellis::WeakCommand stop(target ? target : GetFather());
    while (ZOLCommand* command = stop.Get()) {
        if (command->AnalyseNotification(this, notification))
            return 1;
        ZOLCommand* left = stop.Get(); // an override may have destroyed it without taking anything
        stop = trellis::WeakCommand(left ? left->GetFather() : nullptr);
    }
    return 0;
}

void ZOLCommand::SetFather(ZOLCommand* father) {
    for (const ZOLCommand* ancestor = father; ancestor; ancestor = ancestor->GetFather())
        if (ancestor == this)
            ContractBreach("ZOLCommand::SetFather", "a command cannot be its own ancestor");
    _father = trellis::WeakCommand(father);
}

void ZOLCommand::RequestDelayedDestruction() {
    if (_isBeingDestroyed)
        return;
    GiveUp();
    trellis::DestructionQueue::Instance().Add(*this);
}

void ZOLCommand::GiveUp() {
    _isBeingDestroyed = true;
}

// Frees a command that nobody counts; one that a handle holds goes with the last handle.
void ZOLCommand::FreeGivenUp() {
    AddRef();
    Release();
}
