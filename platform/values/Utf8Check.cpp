#include "values/Utf8Check.h"

#include <unicode/utf8.h>

namespace trellis {

namespace {

constexpr int NoUtf8 = 60212;

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

} // namespace

std::string_view CheckedUtf8(std::string_view text, std::vector<ImportProblem>& problems, std::size_t most) {
    if (text.starts_with(ByteOrderMark))
        text.remove_prefix(ByteOrderMark.size());
    int line = 1;
    const auto length = static_cast<std::int64_t>(text.size());
    for (std::int64_t at = 0; at < length && problems.size() < most;) {
        const std::int64_t before = at;
        UChar32 character = 0;
        U8_NEXT(text.data(), at, length, character);
        line += character == '\n';
        if (character >= 0)
            continue;
        problems.push_back(ImportProblem::Of(line, NoUtf8, {std::to_string(before + 1)}));
        const std::size_t lineEnd = text.find('\n', static_cast<std::size_t>(before));
        at = lineEnd == std::string_view::npos ? length : static_cast<std::int64_t>(lineEnd);
    }
    return text;
}

} // namespace trellis
