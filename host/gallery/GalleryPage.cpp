#include "gallery/GalleryPage.h"

#include "toolkit/ZOLDlgPushItem.h"
#include "toolkit/ZOLDlgTabContainer.h"

namespace trellis {

namespace {

constexpr unsigned long WithoutBorder = 0x80000;

} // namespace

GalleryPage::GalleryPage(ZOLDlgTabContainer* tabs, const ZOLString& name, GalleryLog& log)
    : ZOLDlgTabPage(tabs, name), _log(log) {}

void GalleryPage::BuildExamples() {
    DestroyExamples();
    _holder = new ZOLDlgFrame(this, "Examples", WithoutBorder);
    _holder->SetDefaultOrientation(1);
    _holder->Attach4Sides();
    Build(_holder);
}

void GalleryPage::DestroyExamples() {
    if (_holder)
        _holder->RequestDelayedDestruction();
    _holder = nullptr;
    _examples.clear();
}

template <class Act>
void GalleryPage::ForEach(const Act& act) {
    for (const Example& example : _examples)
        if (auto* widget = static_cast<ZOLDialog*>(example.widget.Get());
            widget && !widget->IsBeingDestroyed())
            act(*widget, example.setByCode);
}

void GalleryPage::SetByCode() {
    ForEach([](ZOLDialog&, const Setter& set) {
        if (set)
            set();
    });
}

void GalleryPage::SetExamplesVisibility(int visibility) {
    ForEach([=](ZOLDialog& widget, const Setter&) { widget.SetVisibility(visibility); });
}

void GalleryPage::SetExamplesSensitivity(int sensitivity) {
    ForEach([=](ZOLDialog& widget, const Setter&) { widget.SetSensitivity(sensitivity); });
}

ZOLDlgFrame* GalleryPage::AddColumn(ZOLDialog* holder, const char* name) {
    auto* column = new ZOLDlgFrame(holder, name, WithoutBorder);
    column->Attach4Sides();
    return column;
}

ZOLDlgFrame* GalleryPage::AddFrame(ZOLDialog* column, const char* name) {
    auto* frame = new ZOLDlgFrame(column, name);
    frame->SetHorizontalAttachment(1);
    return frame;
}

ZOLDlgFrame* GalleryPage::AddGrowingFrame(ZOLDialog* column, const char* name) {
    auto* frame = new ZOLDlgFrame(column, name);
    frame->Attach4Sides();
    return frame;
}

void GalleryPage::AddExample(ZOLDialog* widget, Setter setByCode) {
    _examples.push_back({WeakCommand(widget), std::move(setByCode)});
}

void GalleryPage::Log(ZOLDialog* sender, ZOLNotification* notification, Value value) {
    _values.push_back(std::make_unique<Value>(std::move(value)));
    AddAnalyseNotificationCB(sender, notification, ZOL_CALLBACK(&GalleryPage::HeardCB), _values.back().get());
}

void GalleryPage::Log(ZOLDialog* sender, const char* className, Value value) {
    _values.push_back(std::make_unique<Value>(std::move(value)));
    AddAnalyseNotificationCB(sender, className, ZOL_CALLBACK(&GalleryPage::HeardCB), _values.back().get());
}

ZOLDlgPushItem* GalleryPage::AddItem(ZOLDialog* menu, const char* name) {
    auto* item = new ZOLDlgPushItem(menu, name);
    Log(item, item->GetMenuIActivateNotification(), [=](const ZOLNotification&) { return item->GetTitle(); });
    return item;
}

void GalleryPage::HeardCB(ZOLCommand* sender, ZOLNotification* notification, void* value) {
    _log.Add(*sender, *notification, (*static_cast<Value*>(value))(*notification));
    if (_endsSender)
        sender->RequestDelayedDestruction();
}

ZOLUnicodeString GalleryPage::Text(const char* key) const {
    ZOLUnicodeString text;
    GetResourceValueFromKey(key, text);
    return text;
}

} // namespace trellis
