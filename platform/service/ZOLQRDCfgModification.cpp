#include "service/ZOLQRDCfgModification.h"

#include "model/LinksUnderEdit.h"
#include "toolkit/ZOLGYRResource.h"
#include "values/ContractBreach.h"

using trellis::LinksUnderEdit;

namespace {

ZOLUnicodeString NameOf(const ZOLDMInstance& part) {
    return part.GetNameInstance(1, 1, " ", "$BOM_NAVIG");
}

} // namespace

void ZOLQRDCfgModification::Append(ModificationType kind, SdaiAppInstance* first, SdaiAppInstance* second,
                                   const int& number, const ZOLUnicodeString& id) {
    _edits.push_back({kind, first, second, number, id});
}

const ZOLQRDCfgModification::Edit& ZOLQRDCfgModification::At(int position) const {
    if (position < 1 || position > GetNbModifications())
        ContractBreach("ZOLQRDCfgModification", "position outside 1..GetNbModifications()");
    return _edits[static_cast<std::size_t>(position - 1)];
}

ZOLUnicodeString ZOLQRDCfgModification::GetText(int position) const {
    const Edit& edit = At(position);
    const SdaiAppInstance& before = edit.second ? *edit.second : *edit.first;
    ZOLListValZOLUnicodeString parameters;
    for (const ZOLDMInstance& part :
         {edit.first->GetChild(), edit.first->GetParent(), before.GetChild(), before.GetParent()})
        parameters.Append(NameOf(part));
    parameters.Append(edit.first->GetName());
    parameters.Append(before.GetStoredName());
    ZOLUnicodeString text;
    const std::string key = "Text." + std::to_string(edit.kind);
    ZOLGYRResource("ZOLQRDCfgModification").GetValue(key.c_str(), text, parameters);
    return text;
}

void ZOLQRDCfgModification::Remove(int position) {
    At(position);
    _edits.erase(_edits.begin() + position - 1);
}

void ZOLQRDCfgModification::RollBack(short) {
    for (; !_edits.empty(); _edits.pop_back()) {
        LinksUnderEdit::PutBack(*_edits.back().first);
        if (_edits.back().second)
            LinksUnderEdit::PutBack(*_edits.back().second);
    }
}
