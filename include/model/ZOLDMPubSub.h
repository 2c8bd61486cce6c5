#pragma once

#include "model/ZOLDMInstance.h"

#include <functional>

// ZOLDMPubSub: tells others that objects changed.
class TRELLIS_API ZOLDMPubSub {
public:
    static constexpr int ObjectChanged = 6;

    // Queues an event. It is stored with the next save or commit that succeeds, and delivered after that; a failed
    // one keeps it queued. Instances that name no part, such as a dictionary's, may be published, too; an empty one,
    // and any while no database is open, are dropped.
    static void PublishEvent(const ZOLDMInstance& instance, int number);

    // A listener of this process, called once for each event delivered, in the order of publishing. It may add and
    // remove listeners. The answer is the number with which it is removed.
    using Listener = std::function<void(const ZOLDMInstance&, int number)>;
    static int AddListener(Listener listener);
    static void RemoveListener(int listener);
};
