#include "motif/GraphPainter.h"
#include "motif/PaintFixture.h"
#include "motif/PangoTextMeasure.h"
#include "support/TemporaryFolder.h"
#include "toolkit/GraphExport.h"
#include "toolkit/ZOLGraph.h"
#include "toolkit/ZOLGraphArc.h"
#include "toolkit/ZOLGraphNode.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <memory>

namespace {

using trellis::GraphExport;
using trellis::GraphFrame;
using trellis::LayoutPoint;
using trellis::LayoutRectangle;
using trellis::LayoutSize;
using trellis::NodeAlert;
using trellis::NodeMark;

class GraphPainterTest : public testing::Test {
protected:
    void SetUp() override {
        graph.setHorizontalIndented();
        graph.setWithSquareArc();
        root = Add("root", "diropen.rgb");
    }
    void TearDown() override {
        for (ZOLGraphNode* node : _nodes)
            node->RequestDelayedDestruction();
        trellis::CallbackScope::FreeGivenUp();
    }
    ZOLGraphNode* Add(const char* text, const char* pixmap = "", ZOLGraphNode* parent = nullptr) {
        auto* node = new ZOLGraphNode(text, pixmap);
        _nodes.push_back(node);
        if (parent)
            new ZOLGraphArc(parent, node);
        graph.add(node);
        return node;
    }
    trellis::GraphPicture Picture() { return {graph.GetDrawing(measure), graph.GetLayoutStyle(), frame}; }
    std::unique_ptr<PaintedImage> Painted(const trellis::GraphPicture& picture) {
        auto image = std::make_unique<PaintedImage>(frame.area);
        image->Paint([&](cairo_t* context) { painter.Paint(context, picture); });
        return image;
    }
    LayoutRectangle OnScreen(const ZOLGraphNode* node) {
        const trellis::GraphDrawing& drawing = graph.GetDrawing(measure);
        LayoutRectangle place = drawing.Nodes()[static_cast<std::size_t>(drawing.Position(node))].place;
        place.x += GraphFrame::Margin - frame.viewPoint.x;
        place.y += GraphFrame::Margin - frame.viewPoint.y;
        return place;
    }

    trellis::Theme theme;
    trellis::PangoTextMeasure measure{theme};
    trellis::TextPainter text{theme};
    trellis::GraphPainter painter{text};
    ZOLGraph graph;
    GraphFrame frame{{0, 0}, {300, 300}, 1};
    ZOLGraphNode* root = nullptr;

private:
    std::vector<ZOLGraphNode*> _nodes;
};

TEST_F(GraphPainterTest, EveryStateOfANodeCanBeToldWithoutColour) {
    const std::function<void(ZOLGraphNode*)> states[] = {
        [](ZOLGraphNode*) {},
        [](ZOLGraphNode* node) { node->setHighlight(1); },
        [](ZOLGraphNode* node) { node->setShadowIn(); },
        [](ZOLGraphNode* node) { node->setCurrent(1); },
        [](ZOLGraphNode* node) { node->setDecorationVisibility(0); },
        [](ZOLGraphNode* node) { node->setHighlight(1), node->setShadowIn(); },
        [](ZOLGraphNode* node) { node->setColor(2); },
        [](ZOLGraphNode* node) { node->setColor(4); },
        [](ZOLGraphNode* node) { node->setColor(7); },
        [](ZOLGraphNode* node) { node->setColor(12); },
        [](ZOLGraphNode* node) { node->setColor(46); },
        [](ZOLGraphNode* node) { node->setColor(66); },
        [](ZOLGraphNode* node) { node->setColor(112); },
        [](ZOLGraphNode* node) { node->setColor(254); },
    };
    const LayoutRectangle place = OnScreen(root);
    std::set<std::vector<bool>> looks;
    for (const auto& change : states) {
        root->setColor(6);
        root->setHighlight(0);
        root->setShadowOut();
        root->setCurrent(0);
        root->setDecorationVisibility(1);
        change(root);
        // Form alone: where it is darker than the middle of the node.
        const auto greys = Painted(Picture())->Greys(place);
        std::vector<bool> form;
        for (const int grey : greys)
            form.push_back(grey < 60);
        looks.insert(form);
    }
    EXPECT_EQ(looks.size(), std::size(states));
}

TEST_F(GraphPainterTest, EveryMarkCanBeToldWithoutColour) {
    std::set<std::vector<bool>> looks;
    // Form alone: all on the same ground.
    root->setColor(6);
    const auto look = [&](const char* pixmap, NodeMark mark, NodeAlert alert) {
        root->setPixmap(pixmap);
        root->setMark(mark, alert);
        std::vector<bool> form;
        for (const int grey : Painted(Picture())->Greys(OnScreen(root)))
            form.push_back(grey < 100);
        looks.insert(form);
    };
    constexpr NodeAlert alerts[] = {NodeAlert::None, NodeAlert::Irresolution, NodeAlert::Conflict};
    for (const NodeMark mark : {NodeMark::Undecided, NodeMark::ChosenByUser, NodeMark::ChosenByRule,
                                NodeMark::RejectedByUser, NodeMark::RejectedByRule, NodeMark::Ignored})
        for (const NodeAlert alert : alerts)
            look(" ", mark, alert);
    EXPECT_EQ(looks.size(), 18U) << "options";
    for (const NodeMark mark : {NodeMark::Undecided, NodeMark::Decided, NodeMark::Missing, NodeMark::Ignored})
        look("diropen.rgb", mark, NodeAlert::None);
    for (const NodeAlert alert : alerts)
        look("diropen.rgb", NodeMark::Decided, alert);
    EXPECT_EQ(looks.size(), 18U + 6U) << "groups; an alert comes before what is decided";
    root->setColor(112);
    look(" ", NodeMark::Undecided, NodeAlert::None);
    EXPECT_EQ(looks.size(), 18U + 6U + 1U) << "found by a search";
}

TEST_F(GraphPainterTest, TextsCanBeReadOnEveryColour) {
    for (const NodeMark mark : {NodeMark::None, NodeMark::Ignored, NodeMark::RejectedByRule})
        for (const int colour : {1, 2, 4, 6, 7, 12, 46, 66, 112, 254}) {
            root->setMark(mark);
            root->setColor(colour);
            const LayoutRectangle place = OnScreen(root);
            const std::vector<int> greys =
                Painted(Picture())->Greys({place.x + place.width - 45, place.y + 3, 30, place.height - 6});
            const auto [darkest, lightest] = std::minmax_element(greys.begin(), greys.end());
            EXPECT_GT((*lightest + 12.75) / (*darkest + 12.75), 4.5) << colour;
        }
}

TEST_F(GraphPainterTest, ArcsDifferByLineTypeAndBySomethingElseThanColour) {
    ZOLGraphNode* child = Add("child", "", root);
    const LayoutRectangle from = OnScreen(root);
    const LayoutRectangle to = OnScreen(child);
    const LayoutRectangle corner{from.x, from.y + from.height + 2, to.x - from.x - 1, to.height};
    std::set<std::vector<bool>> looks;
    for (const auto& [type, colour] : {std::pair{1, 3}, {2, 3}, {1, 4}, {2, 4}, {1, 2}}) {
        child->firstArcParent()->setLineType(type);
        child->firstArcParent()->setColor(colour);
        const auto greys = Painted(Picture())->Greys(corner);
        std::vector<bool> form;
        for (const int grey : greys)
            form.push_back(grey < 200);
        looks.insert(form);
    }
    EXPECT_EQ(looks.size(), 5U);
    child->firstArcParent()->hide();
    EXPECT_EQ(Painted(Picture())->Colours(corner).size(), 1U);
}

TEST_F(GraphPainterTest, AHitFindsNodeAndExpanderAtEveryZoom) {
    ZOLGraphNode* child = Add("child", " ", root);
    for (const double zoom : {0.5, 1.0, 2.5}) {
        frame.zoom = zoom;
        frame.viewPoint = {3, 2};
        const auto pixel = [&](double x, double y) {
            return LayoutPoint{static_cast<int>(GraphFrame::Margin + (x - frame.viewPoint.x) * zoom),
                               static_cast<int>(GraphFrame::Margin + (y - frame.viewPoint.y) * zoom)};
        };
        const trellis::GraphDrawing& drawing = graph.GetDrawing(measure);
        const LayoutRectangle place = drawing.Nodes()[1].place;
        EXPECT_EQ(painter.HitAt(Picture(), pixel(place.x + 8, place.y + 8)).node, child);
        EXPECT_FALSE(painter.HitAt(Picture(), pixel(place.x + 8, place.y + 8)).isOnExpander) << "a leaf";
        EXPECT_TRUE(painter.HitAt(Picture(), pixel(12, 12)).isOnExpander);
        EXPECT_EQ(painter.HitAt(Picture(), pixel(40, 12)).node, root);
        EXPECT_FALSE(painter.HitAt(Picture(), pixel(40, 12)).isOnExpander);
        EXPECT_EQ(painter.HitAt(Picture(), pixel(place.x + place.width + 9, place.y + 3)).node, nullptr);
    }
}

TEST_F(GraphPainterTest, ZoomingKeepsWhatIsUnderThePointer) {
    frame.viewPoint = {1000, 2000};
    const LayoutPoint pixel{120, 90};
    const LayoutPoint before = frame.ToDrawing(pixel);
    for (const double zoom : {2.0, 0.5, 0.25, 1.0, 3.0}) {
        frame = frame.ZoomedAt(pixel, zoom);
        EXPECT_NEAR(frame.ToDrawing(pixel).x, before.x, 4);
        EXPECT_NEAR(frame.ToDrawing(pixel).y, before.y, 4);
    }
    EXPECT_EQ(frame.ZoomedAt(pixel, 1000).zoom, GraphFrame::LargestZoom);
    EXPECT_EQ(frame.ZoomedAt(pixel, 0).zoom, GraphFrame::SmallestZoom);
}

TEST_F(GraphPainterTest, ALongUprightLineIsThereWhereNeitherEndIsInSight) {
    for (int i = 0; i < 200; ++i)
        Add("child", "", root);
    frame.viewPoint = {0, 2000};
    const auto image = Painted(Picture());
    const auto greys = image->Greys({GraphFrame::Margin, 100, 20, 1});
    EXPECT_LT(*std::min_element(greys.begin(), greys.end()), 60);
}

TEST_F(GraphPainterTest, AGreyedGraphAndTheFocusCanBeSeen) {
    trellis::GraphPicture picture = Picture();
    const auto plain = Painted(picture)->Greys({0, 0, 150, 40});
    picture.focus = root;
    const auto focused = Painted(picture)->Greys({0, 0, 150, 40});
    picture.focus = nullptr;
    picture.isSensitive = false;
    const auto greyed = Painted(picture)->Greys({0, 0, 150, 40});
    EXPECT_NE(plain, focused);
    EXPECT_GT(*std::min_element(greyed.begin(), greyed.end()), 60);
}

TEST_F(GraphPainterTest, AWholeGraphIsSavedAsSvgAndAsPng) {
    const trellis::test::TemporaryFolder folder;
    ZOLGYRError error;
    for (int i = 0; i < 40; ++i)
        Add("child", "", root);
    const LayoutSize size = graph.GetDrawing(measure).Size();
    const std::string svg = folder.Path("graph.svg");
    const std::string png = folder.Path("graph.png");
    ASSERT_EQ(GraphExport::Save(graph, svg, GraphExport::FormatOf(svg), error), 1);
    ASSERT_EQ(GraphExport::Save(graph, png, GraphExport::FormatOf(png), error), 1);
    EXPECT_NE(folder.Read(svg).find("<svg"), std::string::npos);
    cairo_surface_t* image = cairo_image_surface_create_from_png(png.c_str());
    EXPECT_EQ(cairo_image_surface_get_width(image), size.width + 2 * GraphFrame::Margin);
    EXPECT_EQ(cairo_image_surface_get_height(image), size.height + 2 * GraphFrame::Margin);
    cairo_surface_destroy(image);
}

TEST_F(GraphPainterTest, AFailedSaveTellsWhyAndKeepsTheOldPicture) {
    const trellis::test::TemporaryFolder folder;
    ZOLGYRError error;
    EXPECT_EQ(GraphExport::Save(graph, folder.Path("none/graph.svg"), GraphExport::Svg, error), 0);
    EXPECT_EQ(error.GetCode(), 60160);
    const std::string path = folder.Write("graph.png", "old");
    for (int i = 0; i < 6000; ++i)
        Add("child", "", root);
    EXPECT_EQ(GraphExport::Save(graph, path, GraphExport::Png, error), 0);
    EXPECT_EQ(error.GetCode(), 60161);
    EXPECT_EQ(folder.Read(path), "old");
}

} // namespace
