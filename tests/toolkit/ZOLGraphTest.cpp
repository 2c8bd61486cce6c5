#include "toolkit/ZOLGraph.h"

#include "toolkit/CallbackScope.h"
#include "toolkit/GraphDrawing.h"
#include "toolkit/GraphPalette.h"
#include "toolkit/TextMeasure.h"
#include "toolkit/ZOLGraphArc.h"
#include "toolkit/ZOLGraphNode.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

using trellis::CallbackScope;
using trellis::GraphDrawing;

namespace {

class ZOLGraphTest : public testing::Test {
protected:
    ZOLGraphNode* Node(const char* text, ZOLGraphNode* parent = nullptr) {
        _nodes.push_back(std::make_unique<ZOLGraphNode>(text, " "));
        if (parent)
            new ZOLGraphArc(parent, _nodes.back().get());
        return _nodes.back().get();
    }
    // The owner deletes a node outright.
    void Delete(ZOLGraphNode* node) {
        std::erase_if(_nodes, [node](const auto& owned) { return owned.get() == node; });
    }
    // For nodes that end by delayed destruction.
    void Disown(ZOLGraphNode* node) {
        for (auto& owned : _nodes)
            if (owned.get() == node)
                owned.release();
        std::erase(_nodes, nullptr);
    }
    // First lines of what is drawn, in order, with two dots per level.
    std::string Drawn() {
        std::string text;
        for (const trellis::DrawnNode& drawn : _graph.GetDrawing().Nodes())
            text += std::string(static_cast<std::size_t>(drawn.depth), '.') +
                    drawn.node->firstLine().Bytes() + ' ';
        return text;
    }
    std::string Walked() {
        std::string text;
        for (ZOLGraphNode* node = _graph.firstNode(); node; node = _graph.nextNode())
            text += node->firstLine().Bytes() + ' ';
        return text;
    }

    ZOLGraph _graph;
    std::vector<std::unique_ptr<ZOLGraphNode>> _nodes;
};

} // namespace

TEST_F(ZOLGraphTest, AddingATreeAgainAddsOnlyWhatIsNewAndTakingItOutTwiceIsHarmless) {
    ZOLGraphNode* root = Node("root");
    ZOLGraphNode* first = Node("a", root);
    Node("b", first);
    _graph.addTree(root);
    _graph.addTree(first);
    EXPECT_EQ(Walked(), "root a b ");

    Node("c", root);
    EXPECT_EQ(Drawn(), "root .a ..b ") << "an arc alone draws no node";
    _graph.addTree(root);
    EXPECT_EQ(Drawn(), "root .a ..b .c ");

    _graph.removeTree(first);
    _graph.removeTree(first);
    EXPECT_EQ(Drawn(), "root .c ");
    EXPECT_EQ(first->nChild(), 1) << "objects and arcs live on";
    EXPECT_EQ(first->graph(), nullptr);
    _graph.addTree(first);
    EXPECT_EQ(Drawn(), "root .a ..b .c ") << "the order of children is that of their arcs";
}

TEST_F(ZOLGraphTest, ADeletedNodeLeavesNoArcAndNoPlaceBehind) {
    ZOLGraphNode* root = Node("root");
    ZOLGraphNode* middle = Node("middle", root);
    ZOLGraphNode* leaf = Node("leaf", middle);
    _graph.addTree(root);
    EXPECT_EQ(Drawn(), "root .middle ..leaf ");
    Delete(middle);
    EXPECT_EQ(root->nChild(), 0);
    EXPECT_EQ(root->firstChild(), nullptr);
    EXPECT_EQ(leaf->nParent(), 0);
    EXPECT_EQ(leaf->firstArcParent(), nullptr);
    EXPECT_EQ(Drawn(), "root leaf ");
}

TEST_F(ZOLGraphTest, ANodeThatIsGivenUpIsGoneFromTheTreeBeforeItIsFreed) {
    ZOLGraphNode* root = Node("root");
    ZOLGraphNode* leaf = Node("leaf", root);
    _graph.addTree(root);
    const trellis::WeakCommand watched(leaf);
    {
        const CallbackScope callback;
        Disown(leaf);
        leaf->RequestDelayedDestruction();
        EXPECT_EQ(root->nChild(), 0);
        EXPECT_EQ(Drawn(), "root ");
        _graph.addTree(leaf);
        EXPECT_EQ(Drawn(), "root ") << "what is given up cannot come back";
        EXPECT_EQ(leaf->firstLine(), "leaf");
        EXPECT_NE(watched.Get(), nullptr);
    }
    EXPECT_EQ(watched.Get(), nullptr);
}

TEST_F(ZOLGraphTest, NodesMayBeDeletedWhileTheyAreWalked) {
    ZOLGraphNode* root = Node("root");
    for (const char* name : {"a", "b", "c", "d"})
        Node(name, root);
    _graph.addTree(root);
    ZOLGraphNode* third = _nodes[3].get();
    std::string met;
    for (ZOLGraphNode* child = root->firstChild(); child; child = root->nextChild()) {
        met += child->firstLine().Bytes();
        if (child->firstLine() == ZOLUnicodeString("b"))
            Delete(third); // the next one
        Delete(child);
    }
    EXPECT_EQ(met, "abd");

    Node("e", root);
    _graph.addTree(root);
    met.clear();
    for (ZOLGraphNode* node = _graph.firstNode(); node; node = _graph.nextNode()) {
        met += node->firstLine().Bytes();
        Delete(node);
    }
    EXPECT_EQ(met, "roote");
    EXPECT_EQ(_graph.nNode(), 0);
}

TEST_F(ZOLGraphTest, HiddenNodesAndWhatHangsUnderThemTakeNoRoom) {
    ZOLGraphNode* root = Node("root");
    ZOLGraphNode* branch = Node("branch", root);
    Node("twig", branch);
    Node("leaf", root);
    _graph.setHorizontalIndented();
    _graph.addTree(root);
    const int height = _graph.GetDrawing().Size().height;
    branch->hide();
    EXPECT_EQ(Drawn(), "root .leaf ");
    EXPECT_LT(_graph.GetDrawing().Size().height, height * 6 / 10);
    branch->show();
    EXPECT_EQ(_graph.GetDrawing().Size().height, height);
    root->hide();
    EXPECT_EQ(Drawn(), "");
    EXPECT_EQ(_graph.GetDrawing().Size(), trellis::LayoutSize());
}

TEST_F(ZOLGraphTest, AnArcIsDrawnOnlyBetweenTwoDrawnNodes) {
    ZOLGraphNode* root = Node("root");
    ZOLGraphNode* a = Node("a", root);
    ZOLGraphNode* b = Node("b", root);
    _graph.addTree(root);
    EXPECT_EQ(_graph.GetDrawing().Arcs(), (std::vector{a->firstArcParent(), b->firstArcParent()}));
    a->hide();
    EXPECT_TRUE(a->firstArcParent()->isVisible()) << "its own flag stays";
    EXPECT_EQ(_graph.GetDrawing().Arcs(), (std::vector{b->firstArcParent()}));
    b->firstArcParent()->hide();
    EXPECT_TRUE(_graph.GetDrawing().Arcs().empty());
    EXPECT_EQ(Drawn(), "root .b ");
    delete b->firstArcParent();
    EXPECT_EQ(Drawn(), "root b ");
}

TEST_F(ZOLGraphTest, CirclesAndSeveralParentsAreDrawnOnce) {
    ZOLGraphNode* root = Node("root");
    ZOLGraphNode* a = Node("a", root);
    ZOLGraphNode* b = Node("b", root);
    new ZOLGraphArc(a, b);
    ZOLGraphNode* x = Node("x");
    ZOLGraphNode* y = Node("y", x);
    new ZOLGraphArc(y, x);
    new ZOLGraphArc(y, y);
    _graph.addTree(x);
    _graph.addTree(root);
    EXPECT_EQ(Drawn(), "root .a ..b x .y ");
    EXPECT_EQ(_graph.GetDrawing().Arcs().size(), 6u);
    x->hide();
    EXPECT_EQ(Drawn(), "root .a ..b ");
    _graph.removeTree(y);
    EXPECT_EQ(_graph.nNode(), 3);
}

TEST_F(ZOLGraphTest, ANodeIsInOneGraphAtATimeAndOutlivesIt) {
    ZOLGraphNode* node = Node("node");
    {
        ZOLGraph other;
        _graph.add(node);
        node->insert(&other);
        EXPECT_EQ(_graph.nNode(), 0);
        EXPECT_EQ(node->graph(), &other);
        EXPECT_EQ(node->graphIndex(&other), 0);
        EXPECT_EQ(node->graphIndex(&_graph), -1);
    }
    EXPECT_EQ(node->graph(), nullptr);
    EXPECT_EQ(node->graphCount(), 0);
    node->remove();
    node->hide();
}

TEST_F(ZOLGraphTest, TextsOfSeveralLinesAreKnownByTheirFirstAndTakeTheirRoom) {
    const trellis::TextMeasure cells;
    ZOLGraphNode* one = Node("Colour");
    ZOLGraphNode* three = Node("Colour\nof the outer frame\n");
    EXPECT_EQ(one->firstLine(), three->firstLine());
    const auto small = GraphDrawing::NodeSize(*one, cells);
    const auto large = GraphDrawing::NodeSize(*three, cells);
    EXPECT_EQ(large.height - small.height, 2 * cells.GetLineHeight());
    EXPECT_EQ(large.width - small.width, 12 * cells.GetCharacterWidth()) << "by the longest line";
    three->setText(nullptr);
    EXPECT_EQ(three->firstLine(), "");
    EXPECT_EQ(GraphDrawing::NodeSize(*three, cells).height, small.height);
}

TEST_F(ZOLGraphTest, PixmapsComeBackAsSetAndThoseThatNameNothingTakeNoRoom) {
    const trellis::TextMeasure cells;
    ZOLGraphNode* node = Node("node");
    const int bare = GraphDrawing::NodeSize(*node, cells).width;
    struct Case {
        const char* pixmap;
        bool drawn;
    };
    for (const Case& c :
         {Case{"diropen.rgb", true}, Case{"/usr/share/icons/dirclose.rgb", true}, Case{" ", false},
          Case{".rgb", false}, Case{"/usr/share/ .rgb", false}, Case{"", false}}) {
        node->setPixmap(c.pixmap);
        EXPECT_EQ(node->getPixmap(), c.pixmap);
        EXPECT_EQ(GraphDrawing::NodeSize(*node, cells).width > bare, c.drawn) << c.pixmap;
    }
}

TEST_F(ZOLGraphTest, AMarkHasItsRoomFromTheStartAndIsToldInWords) {
    const trellis::TextMeasure cells;
    ZOLGraphNode* node = Node("node");
    _graph.add(node);
    const int bare = GraphDrawing::NodeSize(*node, cells).width;
    node->setMark(trellis::NodeMark::Undecided);
    EXPECT_GT(GraphDrawing::NodeSize(*node, cells).width, bare);
    const GraphDrawing* drawing = &_graph.GetDrawing();
    node->setMark(trellis::NodeMark::RejectedByRule, trellis::NodeAlert::Conflict);
    EXPECT_EQ(&_graph.GetDrawing(), drawing) << "another mark moves nothing";
    EXPECT_EQ(node->toCompose(), "\"node\" grey: rejected by a rule, in conflict");
    node->setMark(trellis::NodeMark::None);
    EXPECT_EQ(GraphDrawing::NodeSize(*node, cells).width, bare);
    EXPECT_EQ(node->toCompose(), "\"node\" grey");
}

TEST_F(ZOLGraphTest, AnyColourIsKeptAndNamesOutsideThePaletteChangeNothing) {
    ZOLGraphNode* node = Node("node");
    node->setColor(254);
    EXPECT_STREQ(node->getColorName(), "rose");
    node->setColor("no such colour");
    EXPECT_EQ(node->getColor(), 254);
    node->setColor("green");
    EXPECT_EQ(node->getColor(), 46);
    node->setColor(9999);
    EXPECT_EQ(node->getColor(), 9999);
    EXPECT_STREQ(node->getColorName(), "grey") << "drawn plain";
}

TEST_F(ZOLGraphTest, ColoursOfAStateAreToldApartWithoutTheirHue) {
    std::vector<std::string> signs;
    for (const int index : {2, 4, 7, 12, 46, 66, 112, 254}) {
        const trellis::GraphColour& colour = trellis::GraphPalette::At(index);
        EXPECT_EQ(colour.index, index);
        EXPECT_EQ(&colour, trellis::GraphPalette::Find(colour.name));
        EXPECT_EQ(std::count(signs.begin(), signs.end(), colour.sign), 0) << colour.name;
        signs.push_back(colour.sign);
        EXPECT_NE(signs.back(), "");
    }
}

TEST_F(ZOLGraphTest, LookingAgainComputesNothingUntilSomethingThatTakesRoomChanges) {
    ZOLGraphNode* root = Node("root");
    Node("leaf", root);
    _graph.addTree(root);
    const GraphDrawing* drawing = &_graph.GetDrawing();
    root->setColor(4);
    root->setHighlight(1);
    root->firstChild()->firstArcParent()->setLineType(2);
    EXPECT_EQ(&_graph.GetDrawing(), drawing);
    const int width = drawing->Size().width;
    root->setText("a longer text");
    EXPECT_GT(_graph.GetDrawing().Size().width, width);
}

TEST_F(ZOLGraphTest, ThousandsOfNodesAreBuiltAndEndedInAnyOrder) {
    ZOLGraphNode* root = Node("root");
    for (int i = 0; i < 20000; ++i)
        Node("leaf", root);
    _graph.addTree(root);
    EXPECT_EQ(_graph.GetDrawing().Nodes().size(), 20001u);
    for (std::size_t i = 1; i < 10000; ++i)
        _nodes[i].reset();
    std::erase(_nodes, nullptr);
    EXPECT_EQ(root->nChild(), 10001);
    EXPECT_EQ(_graph.GetDrawing().Nodes().size(), 10002u);
}
