#pragma once

#include <string>
#include <string_view>

namespace trellis {

class ListContent;
class ListOrder;

// TypeAhead: finds rows by the letters that a user types into a list. Letters that follow each other quickly
// make one beginning; the same letter again and again walks through the rows that begin with it. Without
// regard to case.
class TypeAhead {
public:
    // The position of the next row, from `from` on and round the end, that begins so; -1 for none.
    //   character     one code point
    //   milliseconds  of the event; wraps around
    //   column        in which texts are looked up
    int Find(std::string_view character, unsigned long milliseconds, const ListContent& content,
             const ListOrder& order, int column, int from);

private:
    std::string _typed; // folded
    unsigned long _last = 0;
};

} // namespace trellis
