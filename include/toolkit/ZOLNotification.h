#pragma once

#include "values/TrellisApi.h"

#include <memory>

class ZOLCallbackManager;

namespace trellis {
class SubscriptionHolders;
}

// ZOLNotification: what one command tells another. A widget keeps one object for each kind of news it sends,
// so that a subscription may name the object; callbacks that serve several kinds look at the name of the
// class first.
class TRELLIS_API ZOLNotification {
public:
    // `className` must be a text that lives as long as the program; `data` is not owned, the sender frees it
    // when SendNotification has returned.
    explicit ZOLNotification(const char* className, void* data = nullptr);
    // Ends the subscriptions on this object.
    virtual ~ZOLNotification();
    ZOLNotification(const ZOLNotification&) = delete;
    ZOLNotification& operator=(const ZOLNotification&) = delete;

    virtual const char* ClassName() const;
    void* GetData() const { return _data; }
    void SetData(void* data) { _data = data; }

private:
    friend class ZOLCallbackManager;

    trellis::SubscriptionHolders& Holders() const;

    const char* _className;
    void* _data;
    mutable std::unique_ptr<trellis::SubscriptionHolders> _holders; // made by the first subscription
};

// ZOLQRDNotificationData: base of what a notification carries when that is more than one word.
class TRELLIS_API ZOLQRDNotificationData {
public:
    virtual ~ZOLQRDNotificationData();
    virtual const char* ClassName() const;
};
