#include "model/ZOLDMPubSub.h"

#include "model/EventDelivery.h"
#include "store/Workspace.h"

#include <map>

namespace {

struct ListenerList {
    std::map<int, ZOLDMPubSub::Listener> byNumber;
    int last = 0;
};

ListenerList& Listeners() {
    static ListenerList listeners;
    return listeners;
}

} // namespace

// A listener may add and remove listeners: those added during a delivery hear the next event, those removed none.
void trellis::DeliverEventsOf(Workspace& workspace) {
    workspace.AddEventListener([](const EventRow& event) {
        const ZOLDMInstance instance(_SEQUENCE_octet(event.instanceUuid), 0, 0, 0);
        const std::map<int, ZOLDMPubSub::Listener> listeners = Listeners().byNumber;
        for (const auto& [number, listener] : listeners)
            if (Listeners().byNumber.contains(number))
                listener(instance, static_cast<int>(event.number));
    });
}

void ZOLDMPubSub::PublishEvent(const ZOLDMInstance& instance, int number) {
    const _SEQUENCE_octet identifier = instance.GetUUId();
    if (trellis::Workspace* workspace = trellis::Workspace::Current(); workspace && identifier.length() > 0)
        workspace->QueueEvent(identifier.Text(), number);
}

int ZOLDMPubSub::AddListener(Listener listener) {
    Listeners().byNumber[++Listeners().last] = std::move(listener);
    return Listeners().last;
}

void ZOLDMPubSub::RemoveListener(int listener) {
    Listeners().byNumber.erase(listener);
}
