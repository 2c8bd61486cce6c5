#include "model/ZOLDMInstance.h"

#include "model/InstanceAccess.h"
#include "model/InstanceState.h"
#include "model/ObjectIdentifier.h"
#include "site/RightTable.h"
#include "values/FailureTrace.h"

using namespace trellis;

ZOLDMInstance::ZOLDMInstance() = default;
ZOLDMInstance::ZOLDMInstance(const ZOLDMInstance&) = default;
ZOLDMInstance::ZOLDMInstance(ZOLDMInstance&&) noexcept = default;
ZOLDMInstance& ZOLDMInstance::operator=(const ZOLDMInstance&) = default;
ZOLDMInstance& ZOLDMInstance::operator=(ZOLDMInstance&&) noexcept = default;
ZOLDMInstance::~ZOLDMInstance() = default;

ZOLDMInstance::ZOLDMInstance(const _SEQUENCE_octet& identifier, int, int, int) {
    if (identifier.length() == 0)
        return;
    _state = std::make_shared<State>();
    const ObjectIdentifier digits(identifier);
    _state->identifier = digits.IsEmpty() ? identifier.Text() : digits.Text();
}

ZOLDMInstance::ZOLDMInstance(const ZOLUnicodeString& databaseName, const ZOLUnicodeString& leadingString,
                             const ZOLUnicodeString& context, const ZOLUnicodeString& xcoid,
                             const ZOLUnicodeString& clientIdentifier)
    : _state(std::make_shared<State>()) {
    _state->database = databaseName.Bytes();
    _state->leading = leadingString.Bytes();
    _state->context = context.Bytes();
    _state->xcoid = xcoid.Bytes();
    _state->client = clientIdentifier.Bytes();
}

ZOLDMInstance InstanceAccess::Of(const RecordOf<PartRow>& part) {
    ZOLDMInstance instance;
    if (!part)
        return instance;
    instance._state = std::make_shared<ZOLDMInstance::State>();
    instance._state->Take(part);
    return instance;
}

ZOLDMInstance InstanceAccess::Of(const RecordOf<LinkRow>& link) {
    ZOLDMInstance instance;
    if (!link)
        return instance;
    instance._state = std::make_shared<ZOLDMInstance::State>();
    instance._state->Take(link);
    return instance;
}

RecordOf<PartRow> InstanceAccess::Part(const ZOLDMInstance& instance) {
    if (!instance._state)
        return nullptr;
    instance._state->Resolve();
    return instance._state->IsAlive() ? instance._state->part : nullptr;
}

RecordOf<LinkRow> InstanceAccess::Link(const ZOLDMInstance& instance) {
    if (!instance._state)
        return nullptr;
    instance._state->Resolve();
    return instance._state->IsAlive() ? instance._state->link : nullptr;
}

_SEQUENCE_octet ZOLDMInstance::GetUUId() const {
    if (!_state)
        return {};
    if (_state->identifier.empty())
        _state->Resolve();
    return _SEQUENCE_octet(_state->identifier);
}

ObjID ZOLDMInstance::GetObjID() const {
    return ObjectIdentifier(GetUUId()).Flat();
}

long ZOLDMInstance::GetCoid() const {
    if (const auto part = InstanceAccess::Part(*this))
        return part->Id();
    const auto link = InstanceAccess::Link(*this);
    return link ? link->Id() : 0;
}

ZOLUnicodeString ZOLDMInstance::GetXCoid() const {
    if (!_state)
        return {};
    _state->Resolve();
    return _state->xcoid;
}

ZOLUnicodeString ZOLDMInstance::GetLeadingString() const {
    if (!_state)
        return {};
    _state->Resolve();
    return _state->leading;
}

ZOLUnicodeString ZOLDMInstance::GetDbname() const {
    if (!_state)
        return {};
    _state->Resolve();
    return _state->database;
}

ZOLUnicodeString ZOLDMInstance::GetClientIdent() const {
    if (!_state)
        return {};
    _state->Resolve();
    return _state->client;
}

namespace {

std::string NameOf(const PartRow& part, const std::string& separator) {
    std::string name;
    for (const std::string& piece : {part.number, part.revision, part.name == part.number ? "" : part.name})
        if (!piece.empty())
            name += (name.empty() ? "" : separator) + piece;
    return name;
}

} // namespace

ZOLUnicodeString ZOLDMInstance::GetNameInstance(const int, const int, const ZOLUnicodeString separator,
                                                const ZOLUnicodeString&) const {
    if (!_state)
        return {};
    _state->Resolve();
    if (_state->part)
        return NameOf(_state->part->Row(), separator.Bytes());
    if (!_state->link)
        return _state->xcoid.empty() ? _state->identifier : _state->xcoid;
    Workspace* workspace = Workspace::Current();
    if (!workspace)
        return _state->client;
    FailureTrace trace("ZOLDMInstance::GetNameInstance");
    const LinkRow& link = _state->link->Row();
    std::string name;
    for (const auto& part : workspace->GetAll<PartRow>({link.parent, link.child}, trace))
        name += (name.empty() ? "" : " / ") + (part ? NameOf(part->Row(), separator.Bytes()) : std::string());
    return name;
}

void ZOLDMInstance::GetAttributes(const ZOLListValZOLUnicodeString& names,
                                  ZOLListValZOLUnicodeString& values) const {
    values.RemoveAll();
    FailureTrace trace("ZOLDMInstance::GetAttributes");
    const auto part = InstanceAccess::Part(*this);
    std::vector<RecordOf<PartAttributeRow>> attributes;
    if (part)
        attributes = Workspace::Current()->Find(
            StoreQuery<PartAttributeRow>().Where(&PartAttributeRow::part, part->Id()), trace);
    for (const ZOLUnicodeString& name : names) {
        ZOLUnicodeString value;
        for (const auto& attribute : attributes)
            if (attribute->Row().name == name.Bytes())
                value = attribute->Row().value;
        if (part && value.IsEmpty()) {
            if (name == "S_PART_NUMBER")
                value = part->Row().number;
            else if (name == "S_PART_REVISION")
                value = part->Row().revision;
            else if (name == "S_PART_NAME")
                value = part->Row().name;
        }
        values.Append(value);
    }
}

int ZOLDMInstance::GetFunctionRight(const ZOLUnicodeString& product, const ZOLUnicodeString& component,
                                    const ZOLUnicodeString& function, int) const {
    if (product != "QRD" || component != "CFG")
        return 0;
    ZOLUnicodeString site;
    GetSiteResponsible(site);
    return RightTable::Refusal(function, site);
}

int ZOLDMInstance::GetSiteResponsible(ZOLUnicodeString& site) const {
    site = ZOLUnicodeString();
    const auto part = InstanceAccess::Part(GetPart());
    if (!part)
        return 20904;
    site = part->Row().siteResponsible;
    return 0;
}

int ZOLDMInstance::Delete(int, int, int, int, int) {
    if (_state)
        _state->Resolve();
    if (!_state || (!_state->part && !_state->link))
        return 20904;
    if (_state->part)
        return 60200;
    if (!_state->link->IsAlive())
        return 60301;
    Workspace& workspace = *Workspace::Current();
    ZOLGYRError error;
    const auto holds = workspace.Find(
        StoreQuery<LinkEffectivityRow>().Where(&LinkEffectivityRow::link, _state->link->Id()), error);
    if (error.GetCode() != 0)
        return error.GetCode();
    for (const auto& hold : holds)
        workspace.Remove(*hold, ChangeHome::Model, error);
    workspace.Remove(*_state->link, ChangeHome::Model, error);
    return error.GetCode();
}

int ZOLDMInstance::MustSendPubSubEvent() {
    return Workspace::Current() ? 1 : 0;
}

int ZOLDMInstance::IsEqual(const ZOLDMInstance& other) const {
    if (_state == other._state)
        return 1;
    return _state && other._state && _state->Key() == other._state->Key() ? 1 : 0;
}

std::size_t ZOLDMInstance::Hash() const {
    return _state ? std::hash<std::string>{}(_state->Key()) : 0;
}
