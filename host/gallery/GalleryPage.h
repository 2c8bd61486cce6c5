#pragma once

#include "gallery/GalleryLog.h"
#include "toolkit/ZOLDlgFrame.h"
#include "toolkit/ZOLDlgTabPage.h"

#include <functional>
#include <memory>
#include <vector>

class ZOLDlgPushItem;
class ZOLDlgTabContainer;

namespace trellis {

// GalleryPage: the examples of one subject. What they send is written into the log; all of them can be set by code,
// greyed, hidden, ended and built anew.
class GalleryPage : public ZOLDlgTabPage {
    ZOL_META_OBJECT(GalleryPage, ZOLDlgTabPage)
public:
    GalleryPage(ZOLDlgTabContainer* tabs, const ZOLString& name, GalleryLog& log);

    // Makes the examples, in place of those that are there.
    void BuildExamples();
    void DestroyExamples();
    // Gives each example another state by code. Nothing of that is sent, however often it is done.
    void SetByCode();
    void SetExamplesVisibility(int visibility);
    void SetExamplesSensitivity(int sensitivity);
    // Whether an example is ended in the notification that it sends.
    void SetEndsSender(bool ends) { _endsSender = ends; }

protected:
    using Setter = std::function<void()>;
    using Value = std::function<ZOLUnicodeString(const ZOLNotification&)>;

    // Makes the examples inside a holder whose children stand beside each other.
    virtual void Build(ZOLDlgFrame* holder) = 0;

    // A column of the page.
    static ZOLDlgFrame* AddColumn(ZOLDialog* holder, const char* name);
    // A frame of one class, as wide as its column; its title names the class.
    static ZOLDlgFrame* AddFrame(ZOLDialog* column, const char* name);
    // The same, which takes a share of the height that is left.
    static ZOLDlgFrame* AddGrowingFrame(ZOLDialog* column, const char* name);
    void AddExample(ZOLDialog* widget, Setter setByCode = {});
    // From now on each notification of this object goes into the log with its value.
    void Log(ZOLDialog* sender, ZOLNotification* notification, Value value);
    // The same for all notifications of a class.
    void Log(ZOLDialog* sender, const char* className, Value value);
    // An item of a menu. When it is chosen, the log gets its title.
    ZOLDlgPushItem* AddItem(ZOLDialog* menu, const char* name);
    // A line of the log about something that is no notification.
    void Remark(const ZOLUnicodeString& remark, const ZOLUnicodeString& widget = {},
                const ZOLUnicodeString& value = {}) {
        _log.AddRemark(remark, widget, value);
    }
    ZOLUnicodeString Text(const char* key) const;

private:
    struct Example {
        WeakCommand widget;
        Setter setByCode;
    };

    void HeardCB(ZOLCommand* sender, ZOLNotification* notification, void* value);
    template <class Act>
    void ForEach(const Act& act);

    GalleryLog& _log;
    ZOLDlgFrame* _holder = nullptr;
    std::vector<Example> _examples;
    std::vector<std::unique_ptr<Value>> _values; // of the examples that were ever built
    bool _endsSender = false;
};

} // namespace trellis
