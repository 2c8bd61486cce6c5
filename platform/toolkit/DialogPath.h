#pragma once

#include <string>
#include <vector>

class ZOLDialog;

namespace trellis {

// DialogPath: a path of resource names: "MainFrame/Separ[2]/NameEd". Each step is searched depth first below
// the dialog found by the one before; "[n]" takes the n-th of that name there, counted from 1. Case counts.
class DialogPath {
public:
    explicit DialogPath(const std::string& path);

    // The dialog below the root; null when a step finds nothing, or the path is no path.
    ZOLDialog* FindBelow(const ZOLDialog& root) const;
    // The same where the first step may also be one of these dialogs itself.
    ZOLDialog* FindAmong(const std::vector<ZOLDialog*>& roots) const;

private:
    struct Step {
        std::string name;
        int number = 1;
    };

    ZOLDialog* FindFrom(std::size_t step, const std::vector<ZOLDialog*>& candidates) const;
    // Counts `left` down at each match, and answers the one at which it reaches 0.
    static ZOLDialog* Search(const std::vector<ZOLDialog*>& candidates, const std::string& name, int& left);

    std::vector<Step> _steps;
};

} // namespace trellis
