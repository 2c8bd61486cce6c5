#include "toolkit/ErrorBox.h"

#include "toolkit/ZOLDlgNotify.h"
#include "toolkit/ZOLGYRResource.h"
#include "values/ZOLGYRError.h"

namespace trellis {

namespace {

ZOLUnicodeString BoxTitle(const ZOLGYRResource& texts, const ZOLGYRError& error, bool isQuestion) {
    if (isQuestion)
        return texts.GetValueOr("Question.Title", "Question");
    return error.IsNotice() ? texts.GetValueOr("Notice.Title", "Notice")
                            : texts.GetValueOr("Error.Title", "Error");
}

} // namespace

int ShowError(ZOLDialog* over, const ZOLGYRError& error, bool isQuestion) {
    if (error.GetCode() <= 0)
        return 0;
    const ZOLGYRResource texts("ZOLGYRDlgError");
    ZOLUnicodeString message;
    error.GetLongMsg(message);

    // The box belongs to nobody: its father may die while it is open.
    ZOLDlgNotify box(nullptr, "ZOLGYRDlgError");
    if (isQuestion) {
        box.SetOKTitle(texts.GetValueOr("Yes.Title", "Yes"));
        box.SetCANCELTitle(texts.GetValueOr("No.Title", "No"));
    } else {
        box.SetOKTitle(texts.GetValueOr("Close.Title", "Close"));
    }
    return box.DisplayOver(over, message, BoxTitle(texts, error, isQuestion), error.GetCode(),
                           error.IsNotice());
}

} // namespace trellis
