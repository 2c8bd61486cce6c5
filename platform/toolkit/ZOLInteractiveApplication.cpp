#include "toolkit/ZOLInteractiveApplication.h"

#include "toolkit/BusyCursor.h"
#include "toolkit/DialogRegistry.h"
#include "toolkit/ToolkitView.h"

ZOLInteractiveApplication* ZOLInteractiveApplication::GetApplication() {
    static ZOLInteractiveApplication application;
    return &application;
}

void ZOLInteractiveApplication::SetBusyCursor(int on) {
    trellis::BusyCursor::Set(on != 0);
}

int ZOLInteractiveApplication::GetBusyCursor() const {
    return trellis::BusyCursor::IsUp() ? 1 : 0;
}

void ZOLInteractiveApplication::UpdateDisplay() {
    if (trellis::ToolkitView* view = trellis::ToolkitView::Current())
        view->UpdateDisplay();
}

void ZOLInteractiveApplication::ReportProgress(const ZOLUnicodeString& text, long done, long of) {
    if (_progressListener)
        _progressListener(text, done, of);
    UpdateDisplay();
}

int ZOLInteractiveApplication::CountDialogs() const {
    return trellis::DialogRegistry::Instance().Count();
}
