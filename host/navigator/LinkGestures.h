#pragma once

#include "navigator/StructureEdit.h"
#include "navigator/StructureGraph.h"

#include <functional>

namespace trellis {

// LinkGestures: what a user does to the chosen nodes of the outline: clipboard, and edits of their links. Works on
// the graph's choice, and chooses what came out of an edit. A gesture on several links stops at the first refusal;
// what was done before it stays.
class LinkGestures {
public:
    // Asks for the name of a link; false when the user gives up.
    using NameQuestion = std::function<bool(ZOLUnicodeString& name)>;

    // What is said when it is done: a key of the window's texts with the number of parts or links.
    struct Gesture {
        const char* name;
        const char* message;
        bool (LinkGestures::*isPossible)() const;
        int (LinkGestures::*run)(ZOLGYRError& error);
    };
    static const std::vector<Gesture>& All();
    // Null for an unknown name.
    static const Gesture* Find(const std::string& name);

    // All three must outlive it.
    LinkGestures(StructureGraph& graph, StructureEdit& edit, NameQuestion question)
        : _graph(graph), _edit(edit), _question(std::move(question)) {}

    bool HasChoice() const { return !_graph.ChosenNodes().empty(); }
    // All that is chosen are links that may be edited.
    bool HasLinks() const;
    bool HasOneLink() const { return HasLinks() && _graph.ChosenNodes().size() == 1; }
    bool HasLinksAndPart() const;
    bool CanPaste() const;
    bool HasEditedLink() const;

    // Each answers how many parts or links it was done to.
    int Copy(ZOLGYRError& error);
    // Like Copy; the next Paste moves the links instead of adding the parts again.
    int Cut(ZOLGYRError& error);
    int Paste(ZOLGYRError& error);
    // Below the part on the clipboard.
    int Move(ZOLGYRError& error);
    int Replace(ZOLGYRError& error);
    int Rename(ZOLGYRError& error);
    int Remove(ZOLGYRError& error);
    int TakeBack(ZOLGYRError& error);

private:
    using Links = std::vector<SdaiAppInstance*>;

    // The links of the chosen nodes, each once.
    Links ChosenLinks() const;
    // Does an edit to links one after the other, and shows and chooses what it gives.
    int Edit(const Links& links, const std::function<SdaiAppInstance*(SdaiAppInstance&)>& edit);

    StructureGraph& _graph;
    StructureEdit& _edit;
    NameQuestion _question;
    Links _cut;
};

} // namespace trellis
