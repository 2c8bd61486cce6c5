#include "toolkit/ZOLCallbackManager.h"

#include "toolkit/ZOLEventSubscriber.h"
#include "toolkit/ZOLNotification.h"

#include <algorithm>

using trellis::SubscriptionEntries;
using trellis::SubscriptionEntry;

namespace trellis {

void SubscriptionHolders::Remove(ZOLCallbackManager* holder) {
    const auto found = _counts.find(holder);
    if (found != _counts.end() && --found->second == 0)
        _counts.erase(found);
}

std::vector<ZOLCallbackManager*> SubscriptionHolders::All() const {
    std::vector<ZOLCallbackManager*> holders;
    holders.reserve(_counts.size());
    for (const auto& [holder, count] : _counts)
        holders.push_back(holder);
    return holders;
}

} // namespace trellis

namespace {

bool IsSame(const ZOLSubscription& a, const ZOLSubscription& b) {
    return a.method == b.method && a.data == b.data;
}

std::uint64_t NextOrder() {
    static std::uint64_t order = 0;
    return ++order;
}

} // namespace

SubscriptionEntries& ZOLCallbackManager::Bucket(const ZOLSubscription& subscription) {
    OnSender& held = _held[subscription.sender];
    return subscription.notification ? held.byNotification[subscription.notification]
                                     : held.byClass[subscription.className];
}

bool ZOLCallbackManager::Add(const ZOLSubscription& subscription) {
    const bool namesNotification = subscription.notification || subscription.className;
    if (!subscription.sender || !namesNotification || !subscription.method)
        return false;

    SubscriptionEntries& entries = Bucket(subscription);
    const auto isThere = [&](const auto& entry) { return IsSame(entry->subscription, subscription); };
    if (std::any_of(entries.begin(), entries.end(), isThere))
        return false;

    auto entry = std::make_shared<SubscriptionEntry>();
    entry->subscription = subscription;
    entry->subscription.className = nullptr; // the caller's text need not live on; the bucket has the name
    entry->order = NextOrder();
    entries.push_back(std::move(entry));

    subscription.sender->GetCallbackManager()->_holders.Add(this);
    if (subscription.notification)
        subscription.notification->Holders().Add(this);
    return true;
}

void ZOLCallbackManager::Remove(const ZOLSubscription& subscription) {
    if (!_held.contains(subscription.sender) || (!subscription.notification && !subscription.className))
        return;
    SubscriptionEntries& entries = Bucket(subscription);
    SubscriptionEntries ended;
    std::erase_if(entries, [&](const auto& entry) {
        const bool isMeant = IsSame(entry->subscription, subscription);
        if (isMeant)
            ended.push_back(entry);
        return isMeant;
    });
    End(ended);
    DropIfEmpty(subscription.sender);
}

void ZOLCallbackManager::EndOn(ZOLEventSubscriber* sender) {
    const auto found = _held.find(sender);
    if (found == _held.end())
        return;
    End(found->second);
    _held.erase(found);
}

void ZOLCallbackManager::EndOn(ZOLEventSubscriber* sender, const ZOLNotification* notification) {
    const auto found = _held.find(sender);
    if (found == _held.end())
        return;
    if (auto entries = found->second.byNotification.extract(notification))
        End(entries.mapped());
    DropIfEmpty(sender);
}

void ZOLCallbackManager::EndOn(ZOLEventSubscriber* sender, const char* className) {
    const auto found = _held.find(sender);
    if (found == _held.end() || !className)
        return;
    if (auto entries = found->second.byClass.extract(className))
        End(entries.mapped());
    DropIfEmpty(sender);
}

void ZOLCallbackManager::EndNotification(const ZOLNotification* notification) {
    for (auto& [sender, held] : _held)
        if (auto entries = held.byNotification.extract(notification))
            End(entries.mapped());
    std::erase_if(_held, [](const auto& held) { return held.second.IsEmpty(); });
}

void ZOLCallbackManager::EndClass(const char* className) {
    if (!className)
        return;
    for (auto& [sender, held] : _held)
        if (auto entries = held.byClass.extract(className))
            End(entries.mapped());
    std::erase_if(_held, [](const auto& held) { return held.second.IsEmpty(); });
}

void ZOLCallbackManager::EndHeld() {
    for (auto& [sender, held] : _held)
        End(held);
    _held.clear();
}

void ZOLCallbackManager::EndOnOwner() {
    for (ZOLCallbackManager* holder : _holders.All())
        holder->EndOn(&_owner);
}

SubscriptionEntries ZOLCallbackManager::Collect(ZOLEventSubscriber* sender,
                                                const ZOLNotification& notification) const {
    SubscriptionEntries matching;
    const auto held = _held.find(sender);
    if (held == _held.end())
        return matching;
    if (const auto found = held->second.byNotification.find(&notification);
        found != held->second.byNotification.end())
        matching = found->second;
    if (const auto found = held->second.byClass.find(notification.ClassName());
        found != held->second.byClass.end())
        matching.insert(matching.end(), found->second.begin(), found->second.end());
    std::sort(matching.begin(), matching.end(),
              [](const auto& a, const auto& b) { return a->order < b->order; });
    return matching;
}

void ZOLCallbackManager::End(SubscriptionEntries& entries) {
    for (const auto& entry : entries) {
        entry->isEnded = true;
        entry->subscription.sender->GetCallbackManager()->_holders.Remove(this);
        if (entry->subscription.notification)
            entry->subscription.notification->Holders().Remove(this);
    }
    entries.clear();
}

void ZOLCallbackManager::End(OnSender& held) {
    for (auto& [notification, entries] : held.byNotification)
        End(entries);
    for (auto& [className, entries] : held.byClass)
        End(entries);
}

void ZOLCallbackManager::DropIfEmpty(ZOLEventSubscriber* sender) {
    const auto found = _held.find(sender);
    if (found == _held.end())
        return;
    std::erase_if(found->second.byNotification, [](const auto& bucket) { return bucket.second.empty(); });
    std::erase_if(found->second.byClass, [](const auto& bucket) { return bucket.second.empty(); });
    if (found->second.IsEmpty())
        _held.erase(found);
}
