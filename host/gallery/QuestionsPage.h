#pragma once

#include "gallery/GalleryPage.h"

class ZOLDlgLabel;
class ZOLDlgWindow;

namespace trellis {

// QuestionsPage: what stands in a window of its own: message boxes, dialogs, progress.
class QuestionsPage : public GalleryPage {
    ZOL_META_OBJECT(QuestionsPage, GalleryPage)
public:
    using GalleryPage::GalleryPage;

protected:
    void Build(ZOLDlgFrame* holder) override;

private:
    void BuildBoxes(ZOLDlgFrame* frame);
    void BuildWindows(ZOLDlgFrame* frame);
    void BuildProgress(ZOLDlgFrame* frame);
    void AddMenuBar(ZOLDlgWindow* window);
    void AddButton(ZOLDlgFrame* frame, const char* name, ZOLNotificationMethod method);

    void NoticeCB(ZOLCommand*, ZOLNotification*, void*);
    void QuestionCB(ZOLCommand*, ZOLNotification*, void*);
    void ChoiceCB(ZOLCommand*, ZOLNotification*, void*);
    void ErrorCB(ZOLCommand*, ZOLNotification*, void*);
    void ErrorQuestionCB(ZOLCommand*, ZOLNotification*, void*);
    void DialogCB(ZOLCommand*, ZOLNotification*, void*);
    void WaitingDialogCB(ZOLCommand*, ZOLNotification*, void*);
    void WindowCB(ZOLCommand*, ZOLNotification*, void*);
    void CloseCB(ZOLCommand* sender, ZOLNotification*, void*);
    void WorkCB(ZOLCommand*, ZOLNotification*, void*);
    // What a box was answered, in the log.
    void TellAnswer(const char* box, int answer);

    ZOLDlgLabel* _workState = nullptr;
};

} // namespace trellis
