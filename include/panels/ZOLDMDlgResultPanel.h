#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLListPtr.h"

class ZOLDMDlgResultPanel;
using ZOLListPtrZOLDMDlgResultPanel = ZOLListPtr<ZOLDMDlgResultPanel>;

// ZOLDMDlgResultPanel: tells panels how their host wants them to start. A host derives from it, and is asked for as
// long as its object lives. Each question answers 1 for yes.
class TRELLIS_API ZOLDMDlgResultPanel {
public:
    // The panels of hosts in the order in which they were made, then a built-in one that answers 0 to everything; so
    // it is never empty, and element 1 is the one to ask.
    static ZOLListPtrZOLDMDlgResultPanel GetListResultPanel();

    // Whether options are chosen in the advanced mode rather than in the simple one.
    virtual int IsAdvancedMode() const { return 0; }
    // Whether the categories that the user took out of the graph of a product stay out of it.
    virtual int FiltersCategories() const { return 0; }
    // Whether the products used are kept in a file from one run to the next.
    virtual int KeepsProducts() const { return 0; }

protected:
    ZOLDMDlgResultPanel();
    virtual ~ZOLDMDlgResultPanel();
    ZOLDMDlgResultPanel(const ZOLDMDlgResultPanel&) = delete;
    ZOLDMDlgResultPanel& operator=(const ZOLDMDlgResultPanel&) = delete;

private:
    struct BuiltIn {};
    explicit ZOLDMDlgResultPanel(BuiltIn) {}
};
