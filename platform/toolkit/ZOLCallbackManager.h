#pragma once

#include "toolkit/ZOLSubscription.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

class ZOLCallbackManager;

namespace trellis {

// One subscription as it is kept. Whoever walks subscriptions holds the entry, not the subscriber: an ended
// entry is not called any more, even when the subscriber is gone.
struct SubscriptionEntry {
    ZOLSubscription subscription;
    std::uint64_t order = 0;
    bool isEnded = false;
    int served = 0; // calls of it that are under way
};
using SubscriptionEntries = std::vector<std::shared_ptr<SubscriptionEntry>>;

// SubscriptionHolders: the tables that hold subscriptions on one sender or one notification, each with how
// many.
class SubscriptionHolders {
public:
    void Add(ZOLCallbackManager* holder) { ++_counts[holder]; }
    void Remove(ZOLCallbackManager* holder);
    std::vector<ZOLCallbackManager*> All() const;

private:
    std::unordered_map<ZOLCallbackManager*, int> _counts;
};

} // namespace trellis

// ZOLCallbackManager: the subscriptions of one subscriber, found by sender and notification at the cost of a
// hash, since one viewer may listen to each of ten thousand nodes.
class ZOLCallbackManager {
public:
    explicit ZOLCallbackManager(ZOLEventSubscriber& owner) : _owner(owner) {}
    ZOLCallbackManager(const ZOLCallbackManager&) = delete;
    ZOLCallbackManager& operator=(const ZOLCallbackManager&) = delete;

    bool Add(const ZOLSubscription& subscription);
    void Remove(const ZOLSubscription& subscription);
    void EndOn(ZOLEventSubscriber* sender);
    void EndOn(ZOLEventSubscriber* sender, const ZOLNotification* notification);
    void EndOn(ZOLEventSubscriber* sender, const char* className);
    void EndNotification(const ZOLNotification* notification);
    void EndClass(const char* className);
    // All that the owner holds.
    void EndHeld();
    // All that others hold on the owner.
    void EndOnOwner();

    // What matches, in order of subscription.
    trellis::SubscriptionEntries Collect(ZOLEventSubscriber* sender,
                                         const ZOLNotification& notification) const;

private:
    struct OnSender {
        std::unordered_map<const ZOLNotification*, trellis::SubscriptionEntries> byNotification;
        std::map<std::string, trellis::SubscriptionEntries, std::less<>> byClass;
        bool IsEmpty() const { return byNotification.empty() && byClass.empty(); }
    };

    trellis::SubscriptionEntries& Bucket(const ZOLSubscription& subscription);
    void End(trellis::SubscriptionEntries& entries);
    void End(OnSender& held);
    void DropIfEmpty(ZOLEventSubscriber* sender);

    ZOLEventSubscriber& _owner;
    std::unordered_map<ZOLEventSubscriber*, OnSender> _held;
    trellis::SubscriptionHolders _holders;
};
