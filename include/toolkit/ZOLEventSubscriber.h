#pragma once

#include "toolkit/ZOLSubscription.h"
#include "values/ZOLBaseUnknown.h"

#include <memory>

class ZOLCallbackManager;

// ZOLEventSubscriber: something that holds subscriptions and on which others hold some. A subscription ends
// when either of the two is destroyed, or the notification object that it names.
class TRELLIS_API ZOLEventSubscriber : public ZOLBaseUnknown {
    ZOL_META_OBJECT(ZOLEventSubscriber, ZOLBaseUnknown)
public:
    ~ZOLEventSubscriber() override;

    // Adds one subscription of this object. Answers 1, or 0 when nothing was added: it is there already (the
    // same sender, notification, method and data), or it lacks sender, notification or method.
    virtual int AddCallback(const ZOLSubscription& subscription);
    // Ends exactly that subscription; method and data count.
    virtual void RemoveCallback(const ZOLSubscription& subscription);
    // Ends all that this object holds on a sender.
    virtual void RemoveCallbacksOn(ZOLEventSubscriber* sender);
    // Ends all that a subscriber holds on this object.
    virtual void RemoveSubscriberCallbacks(ZOLEventSubscriber* subscriber);
    // The table behind these operations; made at the first call, owned by this object, of use to the toolkit
    // alone.
    virtual ZOLCallbackManager* GetCallbackManager();
    // AddCallback for a notification object, or for all objects of a class.
    virtual int AddSubscription(ZOLEventSubscriber* sender, const ZOLNotification* notification,
                                ZOLNotificationMethod method, void* data);
    virtual int AddSubscription(ZOLEventSubscriber* sender, const char* className,
                                ZOLNotificationMethod method, void* data);
    // Ends all that this object holds on a sender for one notification, whatever method and data.
    virtual void RemoveSubscriptionsOn(ZOLEventSubscriber* sender, const ZOLNotification* notification);
    virtual void RemoveSubscriptionsOn(ZOLEventSubscriber* sender, const char* className);
    // Ends all that this object holds and all that others hold on it.
    virtual void RemoveInterfaceSubscriptions();
    // Ends all that this object holds by that class name, whoever sends.
    virtual void RemoveInterfaceSubscriptions(const char* className);

protected:
    ZOLEventSubscriber();

private:
    friend class ZOLCallbackManager;

    std::unique_ptr<ZOLCallbackManager> _callbackManager;
};
