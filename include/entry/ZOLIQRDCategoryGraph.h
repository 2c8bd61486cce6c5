#pragma once

#include "service/ZOLIQrdConfigItem.h"
#include "toolkit/ZOLDlgFrame.h"
#include "toolkit/ZOLGraphViewer.h"
#include "values/ZOLParameter.h"

#include <optional>

class ZOLDMInstance;

// ZOLIQRDCategoryGraph: the module's panel for choosing options, as a host embeds it in a window of its own. The host
// finds its factory by name in ZOLDictionary; the panel belongs to the dialog in which it is made.
class TRELLIS_API ZOLIQRDCategoryGraph : public ZOLDlgFrame {
    ZOL_META_OBJECT(ZOLIQRDCategoryGraph, ZOLDlgFrame)
public:
    // The graph itself, for its notifications and its picture.
    virtual ZOLGraphViewer* GetViewer() = 0;
    // Sent, as the viewer, whenever a changed selection has been drawn.
    virtual ZOLNotification* GetSelectionShownNotification() = 0;
    // The option that a node of the graph stands for, as chosen; nothing for other nodes.
    virtual std::optional<ZOLParameter> GetOption(const ZOLGraphNode* node) const = 0;

    // The selection: what the user chose (source 1, or 0 by a command on a whole category) and what the rules made
    // of it (source 2). Owned by the panel, and valid until the next change.
    virtual const ZOLListPtrZOLParameter& GetParameters() const = 0;
    virtual const ZOLListValZOLUnicodeString& GetIgnoredCategories() const = 0;
    virtual ZOLListValZOLIQrdConfigItem_var GetDictionaries() const = 0;
    // Which modes and rules are on, six numbers: 1 advanced or 2 simple; 3 select or 4 check; 5 rules on or 6 off;
    // 7 directive rules on or 8 off; 9 packages on or 10 off; 11 matrices on or 12 off.
    virtual ZOLListVal<int> GetListOfStatus() const = 0;
    // 1 while the selection contradicts the rules, or these each other.
    virtual int IsInConflict() const = 0;
    // Categories that are neither ignored nor decided: no option is chosen, and one at least could be.
    virtual int CountOpenCategories() const = 0;

    // Takes these choices in place of all there are, as one step that can be undone. The parameters belong to the panel
    // from then on.
    virtual void ChooseInstead(const ZOLListPtrZOLParameter& parameters,
                               const ZOLListValZOLUnicodeString& ignoredCategories) = 0;

protected:
    using ZOLDlgFrame::ZOLDlgFrame;
};

// The name under which the panel's factory is found, and the factory's type.
//   scope     the part whose users share a history of products; it counts only where no products are given
//   products  the configurable parts between which the user can change; the first is shown at once. Without any, the
//             panel begins with the product that was used last within the scope, as far as the host keeps products.
inline constexpr const char* CategoryGraphName = "TRELLIS.CategoryGraph";
using CategoryGraphFactory = ZOLIQRDCategoryGraph* (*)(ZOLDialog* parent, const ZOLString& name,
                                                       const ZOLUnicodeString& title,
                                                       const ZOLDMInstance& scope,
                                                       const ZOLListVal<ZOLDMInstance>& products);
