#pragma once

#include "toolkit/ZOLNotification.h"

class ZOLGraphNode;

// ZOLGraphNotification: what a graph viewer tells of a gesture of the user; carries the node that was hit.
class TRELLIS_API ZOLGraphNotification : public ZOLNotification {
public:
    // Null on the background.
    ZOLGraphNode* GetNode() const;
    void SetNode(ZOLGraphNode* node);

protected:
    using ZOLNotification::ZOLNotification;
};
