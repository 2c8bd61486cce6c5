#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLGYRError.h"
#include "values/ZOLUnicodeString.h"

class ZOLGraph;

namespace trellis {

// GraphExport: saves a whole graph as a picture, as a view draws it, with all nodes that are shown. Needs no
// display.
class TRELLIS_API GraphExport {
public:
    enum Format { Svg, Png };

    // By the ending of a file's name, without regard to case; SVG for all that is not ".png".
    static Format FormatOf(const ZOLUnicodeString& path);

    // Writes the file, in place of one that is there; after an error that one is as it was. A graph without
    // nodes makes a small empty picture. A PNG of more than 32000 pixels to a side is drawn smaller, to a
    // quarter at least.
    //   errors  60160 the file cannot be written, with its name and the reason; 60161 the graph is too large
    //           for a PNG, with the sides it would have
    // 1 when the picture is there, else 0.
    static int Save(const ZOLGraph& graph, const ZOLUnicodeString& path, Format format, ZOLGYRError& error);
};

} // namespace trellis
