#include "gallery/GalleryLog.h"

#include <array>

namespace trellis {

namespace {

enum Column { Notification, Widget, Class, Value };

struct ColumnTable {
    const char* key;
    int width; // characters
};

constexpr std::array<ColumnTable, 4> Columns = {
    {{"Log.Notification", 36}, {"Log.Widget", 20}, {"Log.Class", 22}, {"Log.Value", 36}}};
constexpr int ShownLines = 5;
constexpr int KeptLines = 500;

} // namespace

GalleryLog::GalleryLog(ZOLDialog* father, const ZOLString& name) : ZOLDlgMultiList(father, name) {
    std::array<ZOLUnicodeString, Columns.size()> titles;
    for (std::size_t i = 0; i < Columns.size(); ++i)
        GetResourceValueFromKey(Columns[i].key, titles[i]);
    SetColumnTitles(static_cast<int>(titles.size()), titles.data());
    for (std::size_t i = 0; i < Columns.size(); ++i)
        SetColumnTextWidth(static_cast<int>(i), Columns[i].width);
    SetVisibleLineCount(ShownLines);
    SetVerticalAttachment(0);
}

void GalleryLog::Add(const ZOLCommand& sender, const ZOLNotification& notification,
                     const ZOLUnicodeString& value) {
    AddLine(notification.ClassName(), std::string(sender.GetName().View()), sender.GetMetaObject().name,
            value);
}

void GalleryLog::AddRemark(const ZOLUnicodeString& remark, const ZOLUnicodeString& widget,
                           const ZOLUnicodeString& value) {
    AddLine(remark, widget, {}, value);
}

void GalleryLog::AddLine(const ZOLUnicodeString& notification, const ZOLUnicodeString& widget,
                         const ZOLUnicodeString& kind, const ZOLUnicodeString& value) {
    if (GetLineCount() >= KeptLines)
        ClearLine(0);
    const int row = GetLineCount();
    SetColumnItem(Notification, notification, row);
    SetColumnItem(Widget, widget, row);
    SetColumnItem(Class, kind, row);
    SetColumnItem(Value, value, row);
    SetFirstLine(row);
}

} // namespace trellis
