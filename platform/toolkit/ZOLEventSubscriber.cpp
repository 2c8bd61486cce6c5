#include "toolkit/ZOLEventSubscriber.h"

#include "toolkit/ZOLCallbackManager.h"

ZOLEventSubscriber::ZOLEventSubscriber() = default;

ZOLEventSubscriber::~ZOLEventSubscriber() {
    if (!_callbackManager)
        return;
    _callbackManager->EndHeld();
    _callbackManager->EndOnOwner();
}

ZOLCallbackManager* ZOLEventSubscriber::GetCallbackManager() {
    if (!_callbackManager)
        _callbackManager = std::make_unique<ZOLCallbackManager>(*this);
    return _callbackManager.get();
}

int ZOLEventSubscriber::AddCallback(const ZOLSubscription& subscription) {
    return GetCallbackManager()->Add(subscription) ? 1 : 0;
}

void ZOLEventSubscriber::RemoveCallback(const ZOLSubscription& subscription) {
    GetCallbackManager()->Remove(subscription);
}

void ZOLEventSubscriber::RemoveCallbacksOn(ZOLEventSubscriber* sender) {
    GetCallbackManager()->EndOn(sender);
}

void ZOLEventSubscriber::RemoveSubscriberCallbacks(ZOLEventSubscriber* subscriber) {
    if (subscriber)
        subscriber->RemoveCallbacksOn(this);
}

int ZOLEventSubscriber::AddSubscription(ZOLEventSubscriber* sender, const ZOLNotification* notification,
                                        ZOLNotificationMethod method, void* data) {
    return AddCallback({sender, notification, nullptr, method, data});
}

int ZOLEventSubscriber::AddSubscription(ZOLEventSubscriber* sender, const char* className,
                                        ZOLNotificationMethod method, void* data) {
    return AddCallback({sender, nullptr, className, method, data});
}

void ZOLEventSubscriber::RemoveSubscriptionsOn(ZOLEventSubscriber* sender,
                                               const ZOLNotification* notification) {
    GetCallbackManager()->EndOn(sender, notification);
}

void ZOLEventSubscriber::RemoveSubscriptionsOn(ZOLEventSubscriber* sender, const char* className) {
    GetCallbackManager()->EndOn(sender, className);
}

void ZOLEventSubscriber::RemoveInterfaceSubscriptions() {
    GetCallbackManager()->EndHeld();
    GetCallbackManager()->EndOnOwner();
}

void ZOLEventSubscriber::RemoveInterfaceSubscriptions(const char* className) {
    GetCallbackManager()->EndClass(className);
}
