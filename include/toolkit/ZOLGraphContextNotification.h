#pragma once

#include "toolkit/ZOLGraphNotification.h"

// ZOLGraphContextNotification: the user pressed the context button on the background of a graph.
class TRELLIS_API ZOLGraphContextNotification : public ZOLGraphNotification {
public:
    ZOLGraphContextNotification() : ZOLGraphNotification("ZOLGraphContextNotification") {}
    ~ZOLGraphContextNotification() override;
};
