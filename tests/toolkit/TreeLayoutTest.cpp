#include "toolkit/TreeLayout.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

using trellis::ArcCorners;
using trellis::LayoutPoint;
using trellis::LayoutRectangle;
using trellis::LayoutSize;
using trellis::TreeLayout;
using trellis::TreeLayoutNode;
using trellis::TreeLayoutStyle;
using trellis::TreeShape;

namespace {

struct Forest {
    std::vector<TreeLayoutNode> nodes;
    std::vector<int> depths;
};

// Any sequence of depths that begins with 0 and grows by at most 1 is the walk of some trees.
rc::Gen<Forest> AnyForest() {
    const auto node =
        rc::gen::tuple(rc::gen::inRange(0, 8), rc::gen::inRange(1, 150), rc::gen::inRange(1, 150));
    return rc::gen::map(rc::gen::container<std::vector<std::tuple<int, int, int>>>(node),
                        [](const auto& drawn) {
                            Forest forest;
                            std::vector<int> path; // the node of each depth that the walk is in
                            for (const auto& [wish, width, height] : drawn) {
                                path.resize(std::min(static_cast<std::size_t>(wish), path.size()));
                                forest.nodes.push_back({{width, height}, path.empty() ? -1 : path.back()});
                                forest.depths.push_back(static_cast<int>(path.size()));
                                path.push_back(static_cast<int>(forest.nodes.size()) - 1);
                            }
                            return forest;
                        });
}

rc::Gen<TreeLayoutStyle> AnyStyle() {
    return rc::gen::build<TreeLayoutStyle>(
        rc::gen::set(&TreeLayoutStyle::shape,
                     rc::gen::element(TreeShape::Horizontal, TreeShape::HorizontalBottom,
                                      TreeShape::HorizontalIndented, TreeShape::VerticalCentred)),
        rc::gen::set(&TreeLayoutStyle::packed),
        rc::gen::set(&TreeLayoutStyle::widthMargin, rc::gen::inRange(0, 12)),
        rc::gen::set(&TreeLayoutStyle::depthMargin, rc::gen::inRange(0, 30)));
}

bool Overlap(const LayoutRectangle& a, const LayoutRectangle& b) {
    return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height && b.y < a.y + a.height;
}

int BeginAcross(const LayoutRectangle& place, TreeShape shape) {
    return shape == TreeShape::VerticalCentred ? place.x : place.y;
}

int EndAcross(const LayoutRectangle& place, TreeShape shape) {
    return shape == TreeShape::VerticalCentred ? place.x + place.width : place.y + place.height;
}

} // namespace

RC_GTEST_PROP(TreeLayoutTest, NoTwoNodesOverlapAndAllLieInsideTheSize, ()) {
    const Forest forest = *AnyForest();
    const TreeLayout layout(forest.nodes, *AnyStyle());
    const auto& places = layout.Rectangles();
    RC_ASSERT(places.size() == forest.nodes.size());
    bool touchesLeft = places.empty();
    bool touchesTop = places.empty();
    for (std::size_t i = 0; i < places.size(); ++i) {
        RC_ASSERT((LayoutSize{places[i].width, places[i].height} == forest.nodes[i].size));
        RC_ASSERT(places[i].x >= 0 && places[i].x + places[i].width <= layout.Size().width);
        RC_ASSERT(places[i].y >= 0 && places[i].y + places[i].height <= layout.Size().height);
        touchesLeft = touchesLeft || places[i].x == 0;
        touchesTop = touchesTop || places[i].y == 0;
        for (std::size_t k = 0; k < i; ++k)
            RC_ASSERT(!Overlap(places[i], places[k]));
    }
    RC_ASSERT(touchesLeft && touchesTop);
}

RC_GTEST_PROP(TreeLayoutTest, AChildStandsBehindItsParentByTheDepthMargin, ()) {
    const Forest forest = *AnyForest();
    const TreeLayoutStyle style = *AnyStyle();
    const TreeLayout layout(forest.nodes, style);
    for (std::size_t i = 0; i < forest.nodes.size(); ++i) {
        if (forest.nodes[i].parent < 0)
            continue;
        const LayoutRectangle& child = layout.Rectangles()[i];
        const LayoutRectangle& parent = layout.Rectangles()[static_cast<std::size_t>(forest.nodes[i].parent)];
        if (style.shape == TreeShape::VerticalCentred) {
            RC_ASSERT(child.y >= parent.y + parent.height + style.depthMargin);
        } else if (style.shape == TreeShape::HorizontalIndented) {
            RC_ASSERT(child.x > parent.x + style.depthMargin);
            RC_ASSERT(child.y >= parent.y + parent.height + style.widthMargin);
        } else {
            RC_ASSERT(child.x >= parent.x + parent.width + style.depthMargin);
        }
    }
}

RC_GTEST_PROP(TreeLayoutTest, NodesOfOneDepthKeepTheirOrderAndTheWidthMargin, ()) {
    const Forest forest = *AnyForest();
    const TreeLayoutStyle style = *AnyStyle();
    const TreeLayout layout(forest.nodes, style);
    std::vector<int> lastOfDepth(forest.nodes.size() + 1, -1);
    for (std::size_t i = 0; i < forest.nodes.size(); ++i) {
        int& last = lastOfDepth[static_cast<std::size_t>(forest.depths[i])];
        if (last >= 0) {
            const LayoutRectangle& before = layout.Rectangles()[static_cast<std::size_t>(last)];
            RC_ASSERT(EndAcross(before, style.shape) + style.widthMargin <=
                      BeginAcross(layout.Rectangles()[i], style.shape));
        }
        last = static_cast<int>(i);
    }
}

RC_GTEST_PROP(TreeLayoutTest, APackedParentStandsWhereItsShapePutsItBesideItsChildren, ()) {
    const Forest forest = *AnyForest();
    TreeLayoutStyle style = *AnyStyle();
    style.packed = true;
    style.shape =
        *rc::gen::element(TreeShape::Horizontal, TreeShape::HorizontalBottom, TreeShape::VerticalCentred);
    const TreeLayout layout(forest.nodes, style);
    for (std::size_t i = 0; i < forest.nodes.size(); ++i) {
        int first = 0;
        int last = 0;
        for (std::size_t k = i + 1; k < forest.nodes.size(); ++k)
            if (forest.nodes[k].parent == static_cast<int>(i)) {
                first = first ? first : static_cast<int>(k);
                last = static_cast<int>(k);
            }
        if (!first)
            continue;
        const LayoutRectangle& parent = layout.Rectangles()[i];
        const int begin = BeginAcross(layout.Rectangles()[static_cast<std::size_t>(first)], style.shape);
        const int end = EndAcross(layout.Rectangles()[static_cast<std::size_t>(last)], style.shape);
        if (style.shape == TreeShape::HorizontalBottom)
            RC_ASSERT(EndAcross(parent, style.shape) == end);
        else
            RC_ASSERT(std::abs(BeginAcross(parent, style.shape) + EndAcross(parent, style.shape) - begin -
                               end) <= 1);
    }
}

namespace {

// A root with two children: the first has three children of its own, the second none, the third two.
const std::vector<TreeLayoutNode> Family = {{{30, 10}, -1}, {{20, 10}, 0}, {{20, 10}, 1},
                                            {{20, 10}, 1},  {{20, 10}, 1}, {{20, 10}, 0},
                                            {{20, 10}, 0},  {{20, 10}, 6}, {{20, 10}, 6}};

TreeLayout Laid(TreeShape shape, bool packed) {
    return TreeLayout(Family, {shape, packed, 2, 10, false});
}

} // namespace

TEST(TreeLayoutTest, PackedSubtreesMoveIntoGapsThatBandsLeaveOpen) {
    const TreeLayout bands = Laid(TreeShape::Horizontal, false);
    const TreeLayout packed = Laid(TreeShape::Horizontal, true);
    // Three leaves, the childless child in a band of its own, two leaves: six rows of 10 with margins of 2.
    EXPECT_EQ(bands.Size(), (LayoutSize{90, 70}));
    EXPECT_EQ(bands.Rectangles()[7].y, 48);
    EXPECT_EQ(packed.Rectangles()[7].y, 36) << "directly behind the leaves of the first child";
    EXPECT_LT(packed.Size().height, bands.Size().height);
}

TEST(TreeLayoutTest, InABandOfABroadParentTheChildrenStandWhereTheShapePutsThem) {
    const std::vector<TreeLayoutNode> pair{{{10, 50}, -1}, {{10, 10}, 0}};
    const auto childOf = [&](TreeShape shape) {
        return TreeLayout(pair, {shape, false, 2, 5, false}).Rectangles()[1].y;
    };
    EXPECT_EQ(childOf(TreeShape::Horizontal), 20);
    EXPECT_EQ(childOf(TreeShape::HorizontalBottom), 40);
}

TEST(TreeLayoutTest, ABroadParentDoesNotLeaveItsBandForTheMiddleOfItsChildren) {
    // The last child stands in the middle of a long branch, so the middle of both children is near the top.
    std::vector<TreeLayoutNode> nodes{{{10, 90}, -1}, {{10, 10}, 0}, {{10, 10}, 0}, {{10, 100}, 2}};
    EXPECT_EQ(TreeLayout(nodes, {TreeShape::Horizontal, false, 0, 5, false}).Rectangles()[0].y, 0);
}

TEST(TreeLayoutTest, AnOutlineHasOneRowForEachNode) {
    const TreeLayout outline = Laid(TreeShape::HorizontalIndented, false);
    for (std::size_t i = 0; i < Family.size(); ++i)
        EXPECT_EQ(outline.Rectangles()[i].y, static_cast<int>(i) * 12);
    EXPECT_EQ(outline.Rectangles()[2].x, 2 * outline.Rectangles()[1].x);
}

TEST(TreeLayoutTest, NegativeMarginsCountAsNone) {
    const TreeLayout layout({{{10, 10}, -1}, {{10, 10}, 0}, {{10, 10}, 0}},
                            {TreeShape::Horizontal, true, -5, -5, false});
    EXPECT_EQ(layout.Size(), (LayoutSize{20, 20}));
}

TEST(TreeLayoutTest, AChainAsDeepAsItIsLongIsLaidOut) {
    std::vector<TreeLayoutNode> chain;
    for (int i = 0; i < 100000; ++i)
        chain.push_back({{10, 10}, i - 1});
    for (const TreeShape shape :
         {TreeShape::Horizontal, TreeShape::HorizontalIndented, TreeShape::VerticalCentred}) {
        const TreeLayout layout(chain, {shape, true, 1, 0, false});
        EXPECT_GE(layout.Rectangles().back().x + layout.Rectangles().back().y, 99999 * 10);
    }
}

TEST(TreeLayoutTest, SquareArcsTurnAtRightAnglesAndTouchBothNodes) {
    const LayoutRectangle parent{0, 0, 40, 20};
    struct Case {
        TreeShape shape;
        LayoutRectangle child;
        LayoutPoint from;
        LayoutPoint to;
    };
    const Case cases[] = {
        {TreeShape::Horizontal, {60, 40, 40, 20}, {40, 10}, {60, 50}},
        {TreeShape::HorizontalIndented, {36, 40, 40, 20}, {8, 20}, {36, 50}},
        {TreeShape::VerticalCentred, {60, 40, 40, 20}, {20, 20}, {80, 40}},
    };
    for (const Case& c : cases) {
        const auto square = ArcCorners(parent, c.child, {c.shape, false, 0, 20, true});
        EXPECT_EQ(square.front(), c.from);
        EXPECT_EQ(square.back(), c.to);
        for (std::size_t i = 1; i < square.size(); ++i)
            EXPECT_TRUE(square[i].x == square[i - 1].x || square[i].y == square[i - 1].y);
        const auto straight = ArcCorners(parent, c.child, {c.shape, false, 0, 20, false});
        EXPECT_EQ(straight, (std::array{c.from, c.from, c.to, c.to}));
    }
}
