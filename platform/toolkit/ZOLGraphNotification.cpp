#include "toolkit/ZOLGraphNotification.h"

#include "toolkit/ZOLGraphNode.h"

ZOLGraphNode* ZOLGraphNotification::GetNode() const {
    return static_cast<ZOLGraphNode*>(GetData());
}

void ZOLGraphNotification::SetNode(ZOLGraphNode* node) {
    SetData(node);
}
