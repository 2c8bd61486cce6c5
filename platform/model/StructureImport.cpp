#include "model/StructureImport.h"

#include "model/ImportText.h"
#include "model/StructureDraft.h"
#include "model/StructureReaders.h"
#include "model/StructureWriter.h"
#include "store/Workspace.h"
#include "values/Utf8Check.h"

namespace trellis {

namespace {

constexpr std::size_t largestFile = 512; // megabytes

} // namespace

bool StructureImport::ReadFile(const ZOLUnicodeString& path, ImportReport& report, ZOLGYRError& error,
                               const ProgressCB& progress) {
    report = {};
    std::string text;
    return ImportText::ReadFile(path, largestFile, text, report.problems, error) &&
           ReadText(text, ImportText::FormOf(path), path, report, error, progress);
}

bool StructureImport::ReadText(std::string_view text, Form form, const ZOLUnicodeString& name,
                               ImportReport& report, ZOLGYRError& error, const ProgressCB& progress) {
    report = {};
    Workspace* workspace = Workspace::Current();
    if (!workspace) {
        error.Set(60201);
        return false;
    }
    text = CheckedUtf8(text, report.problems);
    if (!report.problems.empty())
        return ImportText::Refuse(name, report.problems, error);
    const StructureFile file = form == Form::Json ? ReadStructureJson(text, report.problems)
                                                  : ReadStructureCsv(text, report.problems);
    const StructureDraft draft(file, report.problems);
    ZOLGYRError failure;
    const bool written = workspace->RunBulk(
        [&](StoreSession& session) {
            StructureWriter writer(session, draft, workspace->User(), report, progress);
            if (!writer.Check())
                return false;
            writer.Write();
            return true;
        },
        failure);
    if (written)
        return true;
    ImportReport problems;
    problems.problems = std::move(report.problems);
    report = std::move(problems);
    if (!report.problems.empty())
        return ImportText::Refuse(name, report.problems, error);
    error = failure;
    return false;
}

} // namespace trellis
