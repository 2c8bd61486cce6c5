#pragma once

#include "toolkit/ZOLNotification.h"

// ZOLWindowEnterNotification: the user came back to a window from another one: the keyboard is its own again. Sent by
// the window to itself, then to its fathers.
class TRELLIS_API ZOLWindowEnterNotification : public ZOLNotification {
public:
    ZOLWindowEnterNotification() : ZOLNotification("ZOLWindowEnterNotification") {}
    ~ZOLWindowEnterNotification() override;
};
