#include "motif/TypeAhead.h"

#include "motif/ListContent.h"
#include "motif/ListOrder.h"

#include <glib.h>

namespace trellis {

namespace {

constexpr unsigned long Pause = 1000; // milliseconds after which a new beginning starts

std::string Folded(std::string_view text) {
    gchar* valid = g_utf8_make_valid(text.data(), static_cast<gssize>(text.size()));
    gchar* folded = g_utf8_casefold(valid, -1);
    std::string result = folded;
    g_free(folded);
    g_free(valid);
    return result;
}

} // namespace

int TypeAhead::Find(std::string_view character, unsigned long milliseconds, const ListContent& content,
                    const ListOrder& order, int column, int from) {
    const std::string letter = Folded(character);
    if (letter.empty() || order.Count() == 0)
        return -1;
    if (milliseconds - _last > Pause)
        _typed.clear();
    _last = milliseconds;
    const bool isRepeated = _typed == letter;
    if (!isRepeated)
        _typed += letter;

    // A longer beginning may still be met by the row at which the last letter arrived.
    const bool staysPossible = _typed.size() > letter.size();
    const int start = from < 0 ? 0 : from + (staysPossible ? 0 : 1);
    for (int step = 0; step < order.Count(); ++step) {
        const int position = (start + step) % order.Count();
        const ZOLUnicodeString text = content.Text(order.RowAt(position), column);
        if (Folded(text.Bytes()).starts_with(_typed))
            return position;
    }
    return -1;
}

} // namespace trellis
