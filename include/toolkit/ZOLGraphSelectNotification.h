#pragma once

#include "toolkit/ZOLGraphNotification.h"

// ZOLGraphSelectNotification: the user selected the background of a graph.
class TRELLIS_API ZOLGraphSelectNotification : public ZOLGraphNotification {
public:
    ZOLGraphSelectNotification() : ZOLGraphNotification("ZOLGraphSelectNotification") {}
    ~ZOLGraphSelectNotification() override;
};
