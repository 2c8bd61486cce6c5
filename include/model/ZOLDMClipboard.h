#pragma once

#include "model/ZOLDMInstance.h"

// ZOLDMClipboard: the parts that the user copied in the navigator, in the order copied. One for the process; it
// empties when another database is opened. The clipboards of dictionaries and rules are others.
class TRELLIS_API ZOLDMClipboard {
public:
    static int GetNbObject();
    // The n-th, from 1; an index outside ends the process.
    static const ZOLDMInstance& GetObject(int n);
    static const ZOLListValZOLDMInstance& GetObjects();
    static void SetObjects(const ZOLListValZOLDMInstance& objects);
};
