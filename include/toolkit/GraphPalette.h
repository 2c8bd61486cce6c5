#pragma once

#include "values/TrellisApi.h"

#include <cstdint>
#include <string_view>

namespace trellis {

// One colour of a graph: how it is painted, how it is called, and the sign that stands beside the text for
// people who cannot tell colours apart. The signs of all colours that mean a state differ; plain colours have
// none.
struct GraphColour {
    int index;
    const char* name;
    std::uint8_t red;
    std::uint8_t green;
    std::uint8_t blue;
    const char* sign;
};

// GraphPalette: the colours of graphs by their index.
class TRELLIS_API GraphPalette {
public:
    // The entry of an index; the plain colour for one that is not in the palette.
    static const GraphColour& At(int index);
    // Null for an unknown name.
    static const GraphColour* Find(std::string_view name);
};

} // namespace trellis
