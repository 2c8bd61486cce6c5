#include "navigator/LinkGestures.h"

#include "model/ZOLDMClipboard.h"
#include "values/ZOLGYRError.h"

#include <algorithm>

namespace trellis {

namespace {

bool MayBeEdited(const NavigatorNode* node) {
    return node->Link() && !node->Link()->IsRemoved();
}

} // namespace

const std::vector<LinkGestures::Gesture>& LinkGestures::All() {
    using This = LinkGestures;
    static const std::vector<Gesture> gestures = {
        {"CopyItem", "Copied.Msg", &This::HasChoice, &This::Copy},
        {"CutItem", "Cut.Msg", &This::HasLinks, &This::Cut},
        {"PasteItem", "Pasted.Msg", &This::CanPaste, &This::Paste},
        {"MoveItem", "Moved.Msg", &This::HasLinksAndPart, &This::Move},
        {"ReplaceItem", "Replaced.Msg", &This::HasLinksAndPart, &This::Replace},
        {"RenameItem", "Renamed.Msg", &This::HasOneLink, &This::Rename},
        {"RemoveItem", "Removed.Msg", &This::HasLinks, &This::Remove},
        {"TakeBackItem", "TakenBack.Msg", &This::HasEditedLink, &This::TakeBack},
    };
    return gestures;
}

const LinkGestures::Gesture* LinkGestures::Find(const std::string& name) {
    for (const Gesture& gesture : All())
        if (name == gesture.name)
            return &gesture;
    return nullptr;
}

bool LinkGestures::HasLinks() const {
    const StructureGraph::Nodes& nodes = _graph.ChosenNodes();
    return !nodes.empty() && std::all_of(nodes.begin(), nodes.end(), &MayBeEdited);
}

bool LinkGestures::HasLinksAndPart() const {
    return HasLinks() && ZOLDMClipboard::GetNbObject() == 1;
}

bool LinkGestures::CanPaste() const {
    const StructureGraph::Nodes& nodes = _graph.ChosenNodes();
    return nodes.size() == 1 && (!nodes.front()->Link() || MayBeEdited(nodes.front())) &&
           ZOLDMClipboard::GetNbObject() > 0;
}

bool LinkGestures::HasEditedLink() const {
    const Links links = ChosenLinks();
    return std::any_of(links.begin(), links.end(),
                       [](const SdaiAppInstance* link) { return link->IsUnderEdit(); });
}

LinkGestures::Links LinkGestures::ChosenLinks() const {
    Links links;
    for (const NavigatorNode* node : _graph.ChosenNodes())
        if (node->Link() && std::find(links.begin(), links.end(), node->Link()) == links.end())
            links.push_back(node->Link());
    return links;
}

int LinkGestures::Edit(const Links& links, const std::function<SdaiAppInstance*(SdaiAppInstance&)>& edit) {
    Links results;
    for (SdaiAppInstance* link : links) {
        SdaiAppInstance* result = edit(*link);
        if (!result)
            break;
        results.push_back(result);
    }
    _graph.Synchronise();
    _graph.ChooseLinks(results);
    return static_cast<int>(results.size());
}

int LinkGestures::Copy(ZOLGYRError&) {
    _cut.clear();
    ZOLListValZOLDMInstance parts;
    for (const ZOLDMInstance& part : _graph.Chosen())
        parts.Append(part);
    ZOLDMClipboard::SetObjects(parts);
    return parts.Size();
}

int LinkGestures::Cut(ZOLGYRError& error) {
    Copy(error);
    _cut = ChosenLinks();
    return static_cast<int>(_cut.size());
}

int LinkGestures::Paste(ZOLGYRError& error) {
    const ZOLDMInstance parent = _graph.ChosenNodes().front()->Part();
    Links cut;
    // A new link that was taken back meanwhile stands nowhere.
    for (SdaiAppInstance* link : std::exchange(_cut, {}))
        if (!link->IsNew() || link->IsUnderEdit())
            cut.push_back(link);
    if (!cut.empty())
        return Edit(cut, [&](SdaiAppInstance& link) { return _edit.Move(link, parent, error); });

    _graph.OpenChosen(1);
    Links added;
    for (const ZOLDMInstance& part : ZOLDMClipboard::GetObjects())
        if (SdaiAppInstance* link = error.GetCode() == 0 ? _edit.Add(parent, part, error) : nullptr)
            added.push_back(link);
    return Edit(added, [](SdaiAppInstance& link) { return &link; });
}

int LinkGestures::Move(ZOLGYRError& error) {
    const ZOLDMInstance parent = ZOLDMClipboard::GetObject(1);
    return Edit(ChosenLinks(), [&](SdaiAppInstance& link) { return _edit.Move(link, parent, error); });
}

int LinkGestures::Replace(ZOLGYRError& error) {
    const ZOLDMInstance part = ZOLDMClipboard::GetObject(1);
    return Edit(ChosenLinks(), [&](SdaiAppInstance& link) { return _edit.Replace(link, part, error); });
}

int LinkGestures::Rename(ZOLGYRError& error) {
    SdaiAppInstance& chosen = *ChosenLinks().front();
    ZOLUnicodeString name = chosen.GetName();
    if (!_question(name))
        return 0;
    return Edit({&chosen}, [&](SdaiAppInstance& link) { return _edit.Rename(link, name, error); });
}

int LinkGestures::Remove(ZOLGYRError& error) {
    return Edit(ChosenLinks(),
                [&](SdaiAppInstance& link) { return _edit.Remove(link, error) ? &link : nullptr; });
}

int LinkGestures::TakeBack(ZOLGYRError&) {
    Links origins;
    for (SdaiAppInstance* link : ChosenLinks())
        if (_edit.PositionOf(*link) > 0) {
            _edit.TakeBack(*link);
            origins.push_back(link->IsNew() && link->GetOlder() ? link->GetOlder() : link);
        }
    return Edit(origins, [](SdaiAppInstance& link) { return &link; });
}

} // namespace trellis
