#include "toolkit/ZOLNotification.h"

#include "toolkit/ZOLCallbackManager.h"

ZOLNotification::ZOLNotification(const char* className, void* data) : _className(className), _data(data) {}

ZOLNotification::~ZOLNotification() {
    if (!_holders)
        return;
    for (ZOLCallbackManager* holder : _holders->All())
        holder->EndNotification(this);
}

const char* ZOLNotification::ClassName() const {
    return _className;
}

trellis::SubscriptionHolders& ZOLNotification::Holders() const {
    if (!_holders)
        _holders = std::make_unique<trellis::SubscriptionHolders>();
    return *_holders;
}

ZOLQRDNotificationData::~ZOLQRDNotificationData() = default;

const char* ZOLQRDNotificationData::ClassName() const {
    return "ZOLQRDNotificationData";
}
