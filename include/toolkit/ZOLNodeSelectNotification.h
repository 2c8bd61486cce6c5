#pragma once

#include "toolkit/ZOLGraphNotification.h"

// ZOLNodeSelectNotification: the user selected a node. Each node has one of its own.
class TRELLIS_API ZOLNodeSelectNotification : public ZOLGraphNotification {
public:
    ZOLNodeSelectNotification() : ZOLGraphNotification("ZOLNodeSelectNotification") {}
    ~ZOLNodeSelectNotification() override;
};
