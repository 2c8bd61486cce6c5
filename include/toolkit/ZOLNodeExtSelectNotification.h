#pragma once

#include "toolkit/ZOLGraphNotification.h"

// ZOLNodeExtSelectNotification: the user selected a node with Ctrl or Shift held.
class TRELLIS_API ZOLNodeExtSelectNotification : public ZOLGraphNotification {
public:
    ZOLNodeExtSelectNotification() : ZOLGraphNotification("ZOLNodeExtSelectNotification") {}
    ~ZOLNodeExtSelectNotification() override;
};
