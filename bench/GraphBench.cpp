// Measures the selection graph on models of real products: opening it, clicks, undo and redo, without a view, and what
// a screen paints after a click. What the rules take of it is measured beside it, by the same questions to the same
// model in a second dictionary. All times are processor times.
#include "Timing.h"

#include "graph/ZOLCategoryGraphViewer.h"
#include "model/DatabaseSession.h"
#include "model/PartQuery.h"
#include "model/StructureImport.h"
#include "motif/GraphPainter.h"
#include "motif/PangoTextMeasure.h"
#include "rules/engine/RealModel.h"
#include "service/ModelImport.h"
#include "service/ZOLQRDCfgManager.h"
#include "service/ZOLRuleHandler.h"
#include "site/ZOLIQrdSCManager.h"
#include "toolkit/CallbackScope.h"
#include "toolkit/ZOLDlgWindow.h"
#include "values/ZOLGYRError.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <numeric>
#include <random>

using namespace trellis;
using namespace trellis::bench;

namespace {

constexpr int ClickCount = 200;
constexpr unsigned DecidedOneIn = 8;  // clicks on what is decided already
constexpr unsigned RejectedOneIn = 3; // gestures of the other button
constexpr unsigned Seed = 7;
constexpr LayoutSize Screen{1280, 900};

[[noreturn]] void Fail(const ZOLGYRError& error) {
    ZOLUnicodeString message;
    error.GetLongMsg(message);
    std::fprintf(stderr, "bench-graph: %s\n", message.ConvertToChar());
    std::exit(1);
}

// A database with one model in the dictionaries of two products, freshly opened.
class Database {
public:
    explicit Database(const std::filesystem::path& model) {
        const auto path = std::filesystem::temp_directory_path() / "trellis-bench" / "graph.db";
        std::filesystem::create_directories(path.parent_path());
        for (const char* ending : {"", "-wal", "-shm"})
            std::filesystem::remove(path.string() + ending);
        GetSecurityManager()->SetCurrentPerson("bench");
        DatabaseSession::Create(path.string(), _error);
        ImportReport structure;
        StructureImport::ReadText("parent,child\nALL,SHOWN\nALL,TWIN\n", StructureImport::Form::Csv, "bench",
                                  structure, _error);
        const std::string text = RealModelText(model);
        for (const char* product : {"SHOWN", "TWIN"}) {
            Manager().SetConfigurable(Product(product), _error);
            Manager().Save(_error);
            ModelImportReport report;
            ModelImport::ReadText(text, ModelImport::Form::Uvl, model.filename().string(), product, report,
                                  _error);
        }
        DatabaseSession::Close();
        if (_error.GetCode() != 0 || !DatabaseSession::Open(path.string(), _error))
            Fail(_error);
    }
    ~Database() { DatabaseSession::Close(); }
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    ZOLListValZOLIQrdConfigItem_var Dictionary(const char* product) {
        ZOLQRDConfigurableObject object;
        Manager().GetConfigurableObject(Product(product), object, _error);
        return {object.GetDictionary()};
    }
    ZOLListValZOLIQrdCategory_var Categories(const ZOLListValZOLIQrdConfigItem_var& dictionary) {
        ZOLListValZOLIQrdCategory_var categories;
        Manager().GetCategoriesFromDictionary(dictionary[1], categories);
        return categories;
    }

private:
    ZOLQRDCfgManager& Manager() { return *ZOLQRDCfgManager::CurrentCfgManager(_error); }
    ZOLDMInstance Product(const char* number) {
        ZOLListValZOLDMInstance parts;
        PartQuery::ByWord(number, parts, _error);
        return parts[1];
    }

    ZOLGYRError _error;
};

// The rules alone, asked by hand.
class Twin {
public:
    explicit Twin(const ZOLListValZOLIQrdConfigItem_var& dictionary) : _dictionary(dictionary) {}

    // What the rules are asked when a selection is drawn: what no rule decided.
    double TimeToPlay(const ZOLListPtrZOLParameter& selection) {
        ZOLListPtrZOLParameter given;
        for (ZOLParameter* parameter : selection)
            if (parameter->GetParameterSource() != ZOLParameter::SourceRule)
                given.Append(parameter);
        ZOLExpression result;
        ZOLListPtrZOLExpression expressions;
        ZOLListPtrZOLParameter conflicts;
        ZOLListPtrZOLParameter irresolutions;
        int incompatible = 0;
        const double time = TimeOf([&] {
            ZOLRuleHandler(_dictionary)
                .SolveRulesForOptions(given, result, expressions, incompatible, conflicts, irresolutions);
        });
        ZOLDeleteElements(conflicts);
        ZOLDeleteElements(irresolutions);
        return time;
    }

private:
    ZOLListValZOLIQrdConfigItem_var _dictionary;
};

// What the window of Motif paints of a graph, on an image.
class Painting {
public:
    Painting()
        : _surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, Screen.width, Screen.height)),
          _context(cairo_create(_surface)) {}
    ~Painting() {
        cairo_destroy(_context);
        cairo_surface_destroy(_surface);
    }
    Painting(const Painting&) = delete;
    Painting& operator=(const Painting&) = delete;

    void Paint(const ZOLCategoryGraphViewer& viewer, const ZOLGraphNode* middle) {
        const GraphDrawing& drawing = viewer.GetDrawing(_measure);
        GraphPicture picture{drawing, viewer.GetGraph()->GetLayoutStyle(), {{0, 0}, Screen, 1}};
        if (const int position = drawing.Position(middle); position >= 0)
            picture.frame.viewPoint.y =
                drawing.Nodes()[static_cast<std::size_t>(position)].place.y - Screen.height / 2;
        _painter.Paint(_context, picture);
    }

private:
    const Theme _theme;
    PangoTextMeasure _measure{_theme};
    TextPainter _text{_theme};
    GraphPainter _painter{_text};
    cairo_surface_t* _surface;
    cairo_t* _context;
};

struct Measures {
    double opening = 0;
    std::size_t options = 0;
    int conflicts = 0;
    Times clicks;
    Times engine;
    Times others; // clicks without the engine
    Times undos;
    Times redos;
    Times redraws;
    Times terms;         // the selection told as terms
    double defaults = 0; // a default option chosen in every category
};

class Walk {
public:
    Walk(Database& database, bool isAdvanced) : _twin(database.Dictionary("TWIN")) {
        _window = new ZOLDlgWindow(nullptr, "Window");
        _viewer = new ZOLCategoryGraphViewer(_window, "Viewer", "Options", isAdvanced, Screen.width,
                                             Screen.height, 0);
        _window->SetVisibility(ZOLShown);
        _measures.opening = TimeOf([&] {
            const ZOLListValZOLIQrdConfigItem_var dictionary = database.Dictionary("SHOWN");
            _viewer->BuildGraph(database.Categories(dictionary), {}, dictionary);
        });
        _twin.TimeToPlay(_viewer->GetParameters());
        for (const ZOLCategoryNode* category : _viewer->GetCategoryNodes())
            for (ZOLOptionNode* option : category->GetOptionNodes())
                _options.push_back(option);
        _measures.options = _options.size();
        _painting.Paint(*_viewer, nullptr);
    }
    ~Walk() {
        _window->RequestDelayedDestruction();
        CallbackScope::FreeGivenUp();
    }
    Walk(const Walk&) = delete;
    Walk& operator=(const Walk&) = delete;

    // A conflict is taken back at once. Every tenth click goes three steps back and forth again.
    Measures Run() {
        for (int i = 1; i <= ClickCount; ++i) {
            Click();
            const bool isConflict = _viewer->GetRootNode()->getColor() == 4;
            _measures.conflicts += isConflict;
            const int steps = isConflict ? 1 : i % 10 == 0 ? 3 : 0;
            for (int step = 0; step < steps; ++step)
                Step(&ZOLCategoryGraphViewer::Undo, _measures.undos);
            for (int step = 0; step < steps && !isConflict; ++step)
                Step(&ZOLCategoryGraphViewer::Redo, _measures.redos);
        }
        ChooseDefaults();
        return std::move(_measures);
    }

private:
    ZOLOptionNode* Choose() {
        const bool wantsDecided = _random() % DecidedOneIn == 0;
        std::vector<ZOLOptionNode*> found;
        for (ZOLOptionNode* option : _options)
            if ((option->IsSelected() || option->IsRejected()) == wantsDecided)
                found.push_back(option);
        const auto& choice = found.empty() ? _options : found;
        return choice[_random() % choice.size()];
    }
    void Click() {
        ZOLOptionNode* option = Choose();
        const bool isRejecting = _random() % RejectedOneIn == 0;
        const double time =
            TimeOf([&] { isRejecting ? _viewer->UserContextNode(option) : _viewer->UserClickNode(option); });
        const double engine = _twin.TimeToPlay(_viewer->GetParameters());
        _measures.clicks.push_back(time);
        _measures.engine.push_back(engine);
        _measures.others.push_back(time - engine);
        _measures.redraws.push_back(TimeOf([&] { _painting.Paint(*_viewer, option); }));
        _measures.terms.push_back(TimeOf([&] { _viewer->GetOptions(1); }));
    }
    void ChooseDefaults() {
        ZOLGYRError error;
        ZOLListValZOLIQrdCategory_var categories;
        _viewer->GetCategories(categories, 0);
        for (const ZOLIQrdCategory_var& category : categories) {
            ZOLListValZOLIQrdEffectivity_var options;
            category->GetOptions(options);
            category->SetDefaultOptions({options[1]}, error);
        }
        _viewer->RulesOff(0);
        _measures.defaults = TimeOf([&] { _viewer->ResetDefault(); });
        if (error.GetCode() != 0)
            Fail(error);
    }
    void Step(void (ZOLCategoryGraphViewer::*step)(), Times& times) {
        times.push_back(TimeOf([&] { (_viewer->*step)(); }));
        _twin.TimeToPlay(_viewer->GetParameters());
    }

    Twin _twin;
    ZOLDlgWindow* _window;
    ZOLCategoryGraphViewer* _viewer;
    Painting _painting;
    std::vector<ZOLOptionNode*> _options;
    std::mt19937 _random{Seed};
    Measures _measures;
};

void Print(const std::string& model, bool isAdvanced, const Measures& measures) {
    std::printf(
        "| %s | %s | %zu | %.0f | %.1f | %.1f | %.1f | %.1f | %.1f | %.1f | %.1f | %.1f | %.1f | %.1f "
        "| %.1f | %.1f | %.0f | %d |\n",
        model.c_str(), isAdvanced ? "advanced" : "simple", measures.options, measures.opening,
        Mean(measures.clicks), Percentile(measures.clicks, 95), Percentile(measures.clicks, 100),
        Mean(measures.engine), Percentile(measures.engine, 95), Mean(measures.others),
        Percentile(measures.others, 95), Percentile(measures.others, 100), Percentile(measures.undos, 95),
        Percentile(measures.redos, 95), Percentile(measures.redraws, 95), Percentile(measures.terms, 95),
        measures.defaults, measures.conflicts);
    std::fflush(stdout);
}

} // namespace

// Of the files found, those with a name that has the argument in it.
int main(int argc, char** argv) {
    const std::vector<std::filesystem::path> files = RealModelFiles();
    if (files.empty())
        std::printf(
            "No models in the folder models of TRELLIS_DATA, or of ../shared/data beside the checkout.\n");
    std::printf(
        "| model | mode | options | opening ms | click ms | p95 | most | engine ms | p95 | all else ms "
        "| p95 | most | undo p95 | redo p95 | redraw p95 | terms p95 | defaults ms | conflicts |\n"
        "|---|---|---|---|---|---|---|---|---|---|---|---|---|---|---|---|---|---|\n");
    for (const std::filesystem::path& file : files) {
        const std::string name = file.filename().string();
        if (argc > 1 && name.find(argv[1]) == std::string::npos)
            continue;
        for (const bool isAdvanced : {false, true}) {
            Database database(file);
            Print(name.substr(0, name.find(".uvl")), isAdvanced, Walk(database, isAdvanced).Run());
        }
    }
    return files.empty() ? 1 : 0;
}
