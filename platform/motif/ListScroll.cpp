#include "motif/ListScroll.h"

#include <algorithm>

namespace trellis {

void ListScroll::SetCount(int count) {
    _count = std::max(count, 0);
    SetFirst(_first);
}

void ListScroll::SetPage(int page) {
    _page = std::max(page, 1);
    SetFirst(_first);
}

void ListScroll::SetFirst(int position) {
    _first = std::clamp(position, 0, std::max(_count - _page, 0));
}

void ListScroll::Reveal(int position) {
    if (position < 0 || position >= _count)
        return;
    SetFirst(std::clamp(_first, position - _page + 1, position));
}

} // namespace trellis
