#pragma once

#include "toolkit/ZOLGraphNotification.h"

// ZOLNodePointNotification: the user looks at another node than before, with the pointer or by the keys. Without a
// node the pointer has left all of them.
class TRELLIS_API ZOLNodePointNotification : public ZOLGraphNotification {
public:
    ZOLNodePointNotification() : ZOLGraphNotification("ZOLNodePointNotification") {}
    ~ZOLNodePointNotification() override;
};
