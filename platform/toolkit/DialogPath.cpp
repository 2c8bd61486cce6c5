#include "toolkit/DialogPath.h"

#include "toolkit/ZOLDialog.h"

#include <algorithm>
#include <charconv>

namespace trellis {

namespace {

// The n of "name[n]"; 1 without brackets, 0 for brackets that hold no number.
int TakeNumber(std::string& name) {
    const std::size_t open = name.find('[');
    if (open == std::string::npos)
        return 1;
    int number = 0;
    const char* const end = name.data() + name.size();
    const auto [behind, error] = std::from_chars(name.data() + open + 1, end, number);
    const bool isNumber = error == std::errc() && behind + 1 == end && *behind == ']';
    name.resize(open);
    return isNumber ? number : 0;
}

} // namespace

DialogPath::DialogPath(const std::string& path) {
    std::size_t begin = 0;
    while (begin <= path.size()) {
        const std::size_t end = std::min(path.find('/', begin), path.size());
        Step step{path.substr(begin, end - begin), 1};
        step.number = TakeNumber(step.name);
        _steps.push_back(std::move(step));
        begin = end + 1;
    }
}

ZOLDialog* DialogPath::FindBelow(const ZOLDialog& root) const {
    return FindFrom(0, root.GetChildren());
}

ZOLDialog* DialogPath::FindAmong(const std::vector<ZOLDialog*>& roots) const {
    return FindFrom(0, roots);
}

ZOLDialog* DialogPath::FindFrom(std::size_t step, const std::vector<ZOLDialog*>& candidates) const {
    int left = _steps[step].number;
    ZOLDialog* found = left > 0 ? Search(candidates, _steps[step].name, left) : nullptr;
    if (!found || step + 1 == _steps.size())
        return found;
    return FindFrom(step + 1, found->GetChildren());
}

ZOLDialog* DialogPath::Search(const std::vector<ZOLDialog*>& candidates, const std::string& name, int& left) {
    for (ZOLDialog* candidate : candidates) {
        if (candidate->IsBeingDestroyed())
            continue;
        if (candidate->GetName().View() == name && --left == 0)
            return candidate;
        if (ZOLDialog* found = Search(candidate->GetChildren(), name, left))
            return found;
    }
    return nullptr;
}

} // namespace trellis
