#include "model/StructureImport.h"

#include "model/StructureDraft.h"
#include "model/StructureReaders.h"
#include "model/StructureWriter.h"
#include "store/Workspace.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>

namespace trellis {

namespace {

constexpr std::size_t largestFile = std::size_t{512} << 20;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

// Length of the valid UTF-8 sequence at the beginning of a text, or 0.
std::size_t SequenceLength(std::string_view text) {
    const auto octet = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char first = octet(0);
    if (first < 0x80)
        return 1;
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || text.size() < length)
        return 0;
    for (std::size_t i = 1; i < length; ++i)
        if ((octet(i) & 0xC0) != 0x80)
            return 0;
    const bool isOverlong = (first == 0xE0 && octet(1) < 0xA0) || (first == 0xF0 && octet(1) < 0x90);
    const bool isSurrogate = first == 0xED && octet(1) > 0x9F;
    const bool isTooLarge = first == 0xF4 && octet(1) > 0x8F;
    return isOverlong || isSurrogate || isTooLarge ? 0 : length;
}

// Notes each line that is no UTF-8.
void CheckEncoding(std::string_view text, ImportReport& report) {
    int line = 1;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = SequenceLength(text.substr(at));
        if (length == 0) {
            NoteProblem(report, line, 60212, {std::to_string(at + 1)});
            at = std::min(text.find('\n', at), text.size());
            continue;
        }
        line += text[at] == '\n';
        at += length;
    }
}

bool EndsWith(const std::string& path, std::string_view ending) {
    return path.size() >= ending.size() &&
           path.compare(path.size() - ending.size(), ending.size(), ending) == 0;
}

bool Refuse(const ZOLUnicodeString& name, ImportReport& report, ZOLGYRError& error) {
    std::stable_sort(report.problems.begin(), report.problems.end(),
                     [](const ImportProblem& a, const ImportProblem& b) { return a.line < b.line; });
    error.Set(60203);
    error.Add(name);
    error.Add(std::to_string(report.problems.size()));
    return false;
}

bool Unreadable(const ZOLUnicodeString& path, ZOLGYRError& error) {
    error.Set(60202);
    error.Add(path);
    error.Add(ZOLUnicodeString(std::strerror(errno)));
    return false;
}

} // namespace

void NoteProblem(ImportReport& report, int line, int number, const std::vector<std::string>& parameters) {
    ImportProblem problem;
    problem.line = line;
    problem.error.Set(number, 0);
    for (const std::string& parameter : parameters)
        problem.error.Add(parameter);
    report.problems.push_back(std::move(problem));
}

bool StructureImport::ReadFile(const ZOLUnicodeString& path, ImportReport& report, ZOLGYRError& error) {
    errno = 0;
    std::ifstream file(path.Bytes(), std::ios::binary);
    std::string text;
    char buffer[1 << 16];
    while (file && text.size() <= largestFile && file.read(buffer, sizeof buffer).gcount() > 0)
        text.append(buffer, static_cast<std::size_t>(file.gcount()));
    if (!file.is_open() || file.bad() || (text.empty() && errno != 0))
        return Unreadable(path, error);
    if (text.size() > largestFile) {
        report = {};
        NoteProblem(report, 0, 60211, {std::to_string(largestFile >> 20)});
        return Refuse(path, report, error);
    }
    return ReadText(text, EndsWith(path.Bytes(), ".json") ? Form::Json : Form::Csv, path, report, error);
}

bool StructureImport::ReadText(std::string_view text, Form form, const ZOLUnicodeString& name,
                               ImportReport& report, ZOLGYRError& error) {
    report = {};
    Workspace* workspace = Workspace::Current();
    if (!workspace) {
        error.Set(60201);
        return false;
    }
    if (text.starts_with(byteOrderMark))
        text.remove_prefix(byteOrderMark.size());
    CheckEncoding(text, report);
    if (!report.problems.empty())
        return Refuse(name, report, error);
    const StructureFile file =
        form == Form::Json ? ReadStructureJson(text, report) : ReadStructureCsv(text, report);
    const StructureDraft draft(file, report);
    ZOLGYRError failure;
    const bool written = workspace->RunBulk(
        [&](StoreSession& session) {
            StructureWriter writer(session, draft, workspace->User(), report);
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
        return Refuse(name, report, error);
    error = failure;
    return false;
}

} // namespace trellis
