#pragma once

#include "gallery/GalleryHand.h"

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

// GalleryCase: how one kind of widget is operated in the gallery, and what arrives then.
struct GalleryCase {
    using Gesture = std::function<void(GalleryHand& hand, ZOLDialog& widget)>;
    using News = std::vector<std::string>; // the values, as the log of the gallery tells them
    enum class Column { Notification = 0, Value = 3 };

    const char* name;
    const char* page;   // of the gallery
    const char* widget; // its path on the page
    Gesture byMouse;
    News newsOfMouse;
    Gesture byKeys;
    News newsOfKeys;
    const char* sender = nullptr; // who sends, where that is not the widget
    Column told = Column::Value;  // what of the news is compared

    friend std::ostream& operator<<(std::ostream& out, const GalleryCase& gallery);
};

// All kinds, one in a row.
const std::vector<GalleryCase>& GalleryCases();
