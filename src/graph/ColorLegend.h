#pragma once

#include "toolkit/ZOLDlgDialog.h"

class ZOLGraphViewer;

namespace trellis {

// ColorLegend: fills a dialog with one node for each look that a category or an option of the selection graph can have.
class ColorLegend {
public:
    // The texts are those of the mode: what a look says of a category differs.
    ColorLegend(ZOLDialog& dialog, bool isAdvanced) : _dialog(dialog), _isAdvanced(isAdvanced) {}

    void Build();

private:
    struct Look;

    ZOLGraphViewer* AddGraph(ZOLDialog* frame, const char* label, const char* name);
    void AddNode(ZOLGraphViewer& graph, const Look& look, const char* pixmap);

    ZOLDialog& _dialog;
    bool _isAdvanced;
};

} // namespace trellis
