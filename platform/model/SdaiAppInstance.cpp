#include "model/SdaiAppInstance.h"

#include "model/InstanceAccess.h"
#include "model/LinksUnderEdit.h"

ZOLUnicodeString SdaiAppInstance::FindEntityInstanceModel() const {
    return _isUnderEdit ? ZOLUnicodeString(ModelUnderEdit) : SdaiEntityInstance::FindEntityInstanceModel();
}

int SdaiAppInstance::HasAttribute(const ZOLUnicodeString& name) const {
    return name == "ref" ? 1 : 0;
}

SdaiEntityInstance* SdaiAppInstance::GetEntity(const ZOLUnicodeString& name) const {
    return name == "ref" ? trellis::LinksUnderEdit::Part(GetChild()) : nullptr;
}

ZOLDMInstance SdaiAppInstance::GetParent() const {
    return _isNew ? _parent : _instance.GetPart();
}

ZOLDMInstance SdaiAppInstance::GetChild() const {
    return _isNew ? _child : _instance.GetChildPart(1);
}

ZOLUnicodeString SdaiAppInstance::GetName() const {
    return _isUnderEdit ? _name : GetStoredName();
}

ZOLUnicodeString SdaiAppInstance::GetStoredName() const {
    const auto link = InstanceAccess::Link(_instance);
    return link ? ZOLUnicodeString(link->Row().name) : ZOLUnicodeString();
}

double SdaiAppInstance::GetHidden(const std::string& name) const {
    const auto found = _hidden.find(name);
    return found == _hidden.end() ? 0 : found->second;
}
