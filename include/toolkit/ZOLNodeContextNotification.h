#pragma once

#include "toolkit/ZOLGraphNotification.h"

// ZOLNodeContextNotification: the user pressed the context button on a node.
class TRELLIS_API ZOLNodeContextNotification : public ZOLGraphNotification {
public:
    ZOLNodeContextNotification() : ZOLGraphNotification("ZOLNodeContextNotification") {}
    ~ZOLNodeContextNotification() override;
};
