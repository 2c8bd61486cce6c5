#pragma once

// Whether a text given to a list or combo is a new line or replaces one that is there.
enum ZOLListMode { ZOLNewLine = 64, ZOLChangeLine = 128 };
