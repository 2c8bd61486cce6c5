#include "toolkit/GraphPalette.h"

#include <iterator>

namespace trellis {

namespace {

// The first entry stands for every index that is not here.
constexpr GraphColour Colours[] = {
    {1, "grey", 0xd9, 0xdd, 0xe3, ""},         // plain category or root
    {2, "violet", 0xb9, 0x8c, 0xe0, "?"},      // left open by a rule
    {3, "dark grey", 0x5a, 0x62, 0x6e, ""},    // plain arc
    {4, "red", 0xd6, 0x45, 0x3d, "!"},         // conflict
    {6, "white", 0xfa, 0xfa, 0xfa, ""},        // plain option
    {7, "yellow", 0xf2, 0xcf, 0x4a, "*"},      // chosen by a rule; mandatory without a choice
    {12, "orange", 0xe8, 0x8b, 0x3a, "x"},     // rejected by the user
    {46, "green", 0x6d, 0xb7, 0x6b, "\u2713"}, // decided
    {66, "slate", 0x8e, 0x9a, 0xa8, "-"},      // ignored
    {112, "cyan", 0x5c, 0xc4, 0xd4, ">"},      // found by a search
    {254, "rose", 0xe3, 0xa5, 0xb4, "~"},      // rejected by a rule
};

} // namespace

const GraphColour& GraphPalette::At(int index) {
    for (const GraphColour& colour : Colours)
        if (colour.index == index)
            return colour;
    return Colours[0];
}

const GraphColour* GraphPalette::Find(std::string_view name) {
    for (const GraphColour& colour : Colours)
        if (colour.name == name)
            return &colour;
    return nullptr;
}

} // namespace trellis
