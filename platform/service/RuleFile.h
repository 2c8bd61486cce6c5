#pragma once

#include "values/ImportProblem.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace trellis {

// A text of the file, with the place of its first octet in its line.
struct RuleFileText {
    std::string text;
    std::size_t at = 0;
};

// A line that holds a rule, a package or a row of a matrix.
struct RuleFileRule {
    enum class Kind { Directive, Package, Row };

    Kind kind = Kind::Directive;
    int line = 0;
    std::string source; // the line as it stands, without its end
    std::string name;
    RuleFileText text;               // empty for a row given by cells
    std::vector<RuleFileText> cells; // of such a row: names of options, or nothing for the empty cell
    std::string description;
};

struct RuleFileMatrix {
    int line = 0;
    std::string source;
    std::string name;
    std::vector<RuleFileText> columns; // names of categories
    std::string description;
    std::vector<RuleFileRule> rows;
};

// RuleFile: what a file of rules holds, one thing a line.
//
//   # comment                           or an empty line
//   rule "NAME": TEXT                   the name may be left out, as in  rule: TEXT
//   package "NAME": TEXT
//   matrix "NAME": "CATEGORY" | ...     its columns
//       | "OPTION" | - | ...            a row of the matrix above; - is the empty cell
//       row "NAME": TEXT                a row that cells cannot tell
//   description: TEXT                   of what stands above
//
// A quotation mark in a name is written twice. Behind a backslash stand n, r, t, a blank or a backslash, for a line
// feed, a carriage return, a tabulator, a blank at an end, and a backslash.
struct RuleFile {
    std::vector<RuleFileRule> rules;
    std::vector<RuleFileMatrix> matrices;
    std::vector<ImportProblem> problems;

    // The text is valid UTF-8. Lines that cannot be read are noted with 60741, 60742, 60744 to 60746.
    static RuleFile Read(std::string_view text);
    // The text that is read as this; places, lines and sources do not count.
    std::string Text() const;

    void Note(int line, int number, const std::vector<std::string>& parameters = {});
    // The place in a line that octet `at` of the plain text of a part of it has, which begins at `part`.
    static std::size_t PlaceInLine(const std::string& source, const RuleFileText& part, std::size_t at);
};

} // namespace trellis
