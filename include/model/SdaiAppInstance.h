#pragma once

#include "model/SdaiEntityInstance.h"
#include "model/ZOLDMInstance.h"

#include <map>
#include <string>

namespace trellis {
class LinksUnderEdit;
}

// SdaiAppInstance: a link of the structure, stored or made by an edit. The edits change it in memory alone: stored
// rows stay as they are until the modifications are written.
class TRELLIS_API SdaiAppInstance final : public SdaiEntityInstance {
public:
    ZOLUnicodeString FindEntityInstanceModel() const override;
    ZOLDMInstance GetInstance() const override { return _instance; }
    int HasAttribute(const ZOLUnicodeString& name) const override;
    SdaiEntityInstance* GetEntity(const ZOLUnicodeString& name) const override;

    // Whether it stands in the working model of links under edit; a new one does from the start.
    bool IsUnderEdit() const { return _isUnderEdit; }
    // Whether an edit made it.
    bool IsNew() const { return _isNew; }
    // Whether the edits take it away: its hidden attribute "present" is below 0.
    bool IsRemoved() const { return GetHidden("present") < 0; }

    // The part that holds it, and its child part.
    ZOLDMInstance GetParent() const;
    ZOLDMInstance GetChild() const;
    // The name as the edits leave it; may be empty.
    ZOLUnicodeString GetName() const;
    // The name that is stored; empty for a new link.
    ZOLUnicodeString GetStoredName() const;
    // Of a new link: the older one whose place it takes; null for one that was added, and for a stored one.
    SdaiAppInstance* GetOlder() const { return _older; }

    // Hidden attributes are marks of links under edit and never stored; 0 when there is none of that name.
    double GetHidden(const std::string& name) const;

private:
    friend class trellis::LinksUnderEdit;
    friend class ZOLGYRSdai;

    explicit SdaiAppInstance(ZOLDMInstance instance) : _instance(std::move(instance)) {}

    ZOLDMInstance _instance;
    ZOLDMInstance _parent; // of a new link; a stored one knows it from its row
    ZOLDMInstance _child;
    ZOLUnicodeString _name; // while under edit
    SdaiAppInstance* _older = nullptr;
    bool _isNew = false;
    bool _isUnderEdit = false;
    std::map<std::string, double> _hidden;
};
