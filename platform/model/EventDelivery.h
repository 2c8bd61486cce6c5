#pragma once

namespace trellis {

class Workspace;

// Passes the events of a workspace on to the listeners of ZOLDMPubSub, as long as it is open.
void DeliverEventsOf(Workspace& workspace);

} // namespace trellis
