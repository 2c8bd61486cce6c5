#pragma once

#include "values/ZOLParameter.h"

#include <functional>
#include <memory>

namespace trellis {

// How a click is merged into the parameters of a selection. Both keep the order of what stays.
class SelectionMerge {
public:
    struct Mode {
        bool isAdvanced = false;
        // Selecting in an exclusive category rejects the other options.
        bool managesRejection = true;
    };
    // The names of all options of a category; null when the category has no node.
    using OptionsOfCategory =
        std::function<const ZOLListValZOLUnicodeString*(const ZOLUnicodeString& category)>;

    // The list owns what it points to.
    SelectionMerge(ZOLListPtrZOLParameter& current, Mode mode) : _current(current), _mode(mode) {}

    // A selected option loses its parameter. A rejected one loses the rejection in advanced mode, and is selected in
    // simple mode. In an exclusive category a choice of the user elsewhere goes: in simple mode the selection moves, in
    // advanced mode it takes a second click. Parameters of rules stay.
    void Select(std::unique_ptr<ZOLParameter> clicked, const OptionsOfCategory& optionsOf);
    // The same for the rejecting gesture. In an exclusive category with a selection a rejection cannot be taken away:
    // it stays with the source that it had.
    void Reject(std::unique_ptr<ZOLParameter> clicked);

private:
    ZOLListPtrZOLParameter Take();

    ZOLListPtrZOLParameter& _current;
    Mode _mode;
};

} // namespace trellis
