// How long lists and graphs take to fill and to paint, off screen.

#include "motif/GraphPainter.h"
#include "motif/ListPainter.h"
#include "motif/PangoTextMeasure.h"
#include "toolkit/ZOLDlgDialog.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLGraph.h"
#include "toolkit/ZOLGraphArc.h"
#include "toolkit/ZOLGraphNode.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <string>

namespace {

using namespace trellis;

constexpr int Elements = 20000;
constexpr LayoutSize Screen{1280, 900};

// An image of the size of a screen, as the window system would hold it.
class Canvas {
public:
    Canvas()
        : _surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, Screen.width, Screen.height)),
          _context(cairo_create(_surface)) {}
    ~Canvas() {
        cairo_destroy(_context);
        cairo_surface_destroy(_surface);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    cairo_t* Context() const { return _context; }

private:
    cairo_surface_t* _surface;
    cairo_t* _context;
};

// Categories of 20 options under one root, in many colours.
class LargeGraph {
public:
    explicit LargeGraph(bool isOutline) {
        if (isOutline)
            graph.setHorizontalIndented();
        graph.setPacked();
        graph.setWidthMargin(1);
        graph.setDepthMargin(10);
        graph.setWithSquareArc();
        constexpr int colours[] = {1, 2, 4, 6, 7, 12, 46, 66, 112, 254};
        ZOLGraphNode* root = Add("root", nullptr);
        ZOLGraphNode* category = nullptr;
        for (int i = 1; i < Elements; ++i) {
            const std::string name = (i % 21 == 1 ? "Category " : "Option ") + std::to_string(i);
            ZOLGraphNode* node = Add(name.c_str(), i % 21 == 1 ? root : category);
            node->setColor(colours[i % 10]);
            if (i % 21 == 1) {
                category = node;
                continue;
            }
            node->setPixmap(" ");
            node->setMark(static_cast<NodeMark>(1 + i % 6), static_cast<NodeAlert>(i % 7 == 0));
        }
        graph.addTree(root);
    }
    GraphPicture Picture(double zoom) {
        const GraphDrawing& drawing = graph.GetDrawing(measure);
        GraphPicture picture{drawing, graph.GetLayoutStyle(), {{0, 0}, Screen, zoom}};
        picture.frame.viewPoint.y = drawing.Size().height / 2;
        return picture;
    }

    const Theme theme;
    PangoTextMeasure measure{theme};
    ZOLGraph graph;

private:
    ZOLGraphNode* Add(const char* text, ZOLGraphNode* parent) {
        _nodes.push_back(std::make_unique<ZOLGraphNode>(text, "diropen.rgb"));
        if (parent)
            new ZOLGraphArc(parent, _nodes.back().get());
        return _nodes.back().get();
    }
    std::vector<std::unique_ptr<ZOLGraphNode>> _nodes;
};

// Arguments: outline or columns; zoom in percent; units by which it scrolls between two redraws.
void RedrawGraph(benchmark::State& state) {
    LargeGraph large(state.range(0) != 0);
    TextPainter text(large.theme);
    GraphPainter painter(text);
    Canvas canvas;
    GraphPicture picture = large.Picture(static_cast<double>(state.range(1)) / 100);
    for (auto step : state) {
        picture.frame.viewPoint.y += static_cast<int>(state.range(2));
        painter.Paint(canvas.Context(), picture);
    }
}
BENCHMARK(RedrawGraph)
    ->Args({0, 100, 0})
    ->Args({0, 100, 40})
    ->Args({1, 100, 0})
    ->Args({1, 100, 40})
    ->Args({0, 40, 40})
    ->Args({0, 10, 40})
    ->Unit(benchmark::kMillisecond);

// Arguments: outline or columns. One motion of the pointer, each to another node.
void PointAtGraph(benchmark::State& state) {
    LargeGraph large(state.range(0) != 0);
    const GraphDrawing& drawing = large.graph.GetDrawing(large.measure);
    std::size_t i = 0;
    for (auto step : state) {
        i = (i + 7919) % drawing.Nodes().size();
        const LayoutRectangle& place = drawing.Nodes()[i].place;
        benchmark::DoNotOptimize(drawing.NodeAt({place.x + 1, place.y + 1}));
    }
}
BENCHMARK(PointAtGraph)->Arg(0)->Arg(1);

void LayOutGraph(benchmark::State& state) {
    LargeGraph large(false);
    for (auto step : state)
        benchmark::DoNotOptimize(GraphDrawing(large.graph, large.measure).Size());
}
BENCHMARK(LayOutGraph)->Unit(benchmark::kMillisecond);

// A list of eight columns as a panel fills it.
class LargeList {
public:
    LargeList() : _dialog(std::make_unique<ZOLDlgDialog>(nullptr, "Dialog", 0)) {
        list = new ZOLDlgMultiList(_dialog.get(), "List", 0x40000);
        const ZOLUnicodeString titles[Columns] = {"Name",  "M",  "E",  "Description",
                                                  "Owner", "By", "At", "Use"};
        list->SetColumnTitles(Columns, titles);
    }
    void Fill() const {
        list->ClearLine();
        for (int row = 0; row < Elements; ++row)
            for (int column = 0; column < Columns; ++column)
                list->SetColumnItem(column, "text " + std::to_string(row * 7919 % Elements));
    }
    static constexpr int Columns = 8;
    ZOLDlgMultiList* list;

private:
    std::unique_ptr<ZOLDlgDialog> _dialog;
};

// What stands between an empty list and one on the screen.
void FillAndPaintList(benchmark::State& state) {
    const LargeList large;
    const Theme theme;
    TextPainter text(theme);
    ListPainter painter(theme, text);
    Canvas canvas;
    for (auto step : state) {
        large.Fill();
        const ListContent content(*large.list);
        ListOrder order;
        order.Update(content);
        ListColumns columns;
        columns.Update(content, text.CharacterWidth(), painter.CellPadding(), Screen.width);
        painter.Paint(canvas.Context(), {content, order, columns, Screen});
    }
}
BENCHMARK(FillAndPaintList)->Unit(benchmark::kMillisecond);

void SortList(benchmark::State& state) {
    const LargeList large;
    large.Fill();
    const ListContent content(*large.list);
    for (auto step : state) {
        ListOrder order;
        order.SortBy(0);
        order.Update(content);
        benchmark::DoNotOptimize(order.RowAt(0));
    }
}
BENCHMARK(SortList)->Unit(benchmark::kMillisecond);

void ScrollList(benchmark::State& state) {
    const LargeList large;
    large.Fill();
    const Theme theme;
    TextPainter text(theme);
    ListPainter painter(theme, text);
    Canvas canvas;
    const ListContent content(*large.list);
    ListOrder order;
    order.Update(content);
    ListColumns columns;
    columns.Update(content, text.CharacterWidth(), painter.CellPadding(), Screen.width);
    ListPicture picture{content, order, columns, Screen};
    for (auto step : state) {
        picture.first = (picture.first + 30) % (Elements - 40);
        painter.Paint(canvas.Context(), picture);
    }
}
BENCHMARK(ScrollList)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
