#pragma once

#include "toolkit/ZOLDlgMultiList.h"

namespace trellis {

// GalleryLog: the notifications that arrived, the last one below, with the widget that sent each.
class GalleryLog : public ZOLDlgMultiList {
    ZOL_META_OBJECT(GalleryLog, ZOLDlgMultiList)
public:
    GalleryLog(ZOLDialog* father, const ZOLString& name);

    void Add(const ZOLCommand& sender, const ZOLNotification& notification, const ZOLUnicodeString& value);
    // A line about something else, which may have to do with one widget.
    void AddRemark(const ZOLUnicodeString& remark, const ZOLUnicodeString& widget = {},
                   const ZOLUnicodeString& value = {});

private:
    void AddLine(const ZOLUnicodeString& notification, const ZOLUnicodeString& widget,
                 const ZOLUnicodeString& kind, const ZOLUnicodeString& value);
};

} // namespace trellis
