#pragma once

#include "rules/readers/ModelProblems.h"

#include <string_view>

namespace trellis {

// A line of meaning in a UVL text: it goes on to the next line of the file while a bracket is open.
struct UvlLine {
    int number = 0;        // of its first line in the file, from 1
    int indentation = 0;   // its width; a tab leads to the next multiple of 8
    int offset = 0;        // octets before the text on that line
    std::string_view text; // without indentation; not empty
};

// UvlLines: cuts a UVL text into its lines of meaning. Lines that are blank or hold only comment are passed
// over.
class UvlLines {
public:
    UvlLines(std::string_view text, ModelProblems& problems) : _text(text), _problems(problems) {}

    // False at the end, or when too many problems stand. A comment or bracket that is never closed is noted:
    // 60706, 60705.
    bool Next(UvlLine& line);

private:
    void BeginLine();
    void PassOver(std::size_t end);
    std::size_t EndOfText() const;
    bool IsCommentOpen(std::size_t at) const;

    std::string_view _text;
    ModelProblems& _problems;
    std::size_t _at = 0;
    std::size_t _lineStart = 0;
    int _number = 1;
    int _indentation = 0;
};

struct UvlToken {
    enum class Kind {
        Name,
        QuotedName, // without its quotes
        Symbol,     // ! & | => <=> or a single other sign
        OpenQuote,  // a quote that is not closed on its line
        End
    };

    Kind kind = Kind::End;
    std::string_view text;

    bool Is(std::string_view symbol) const { return kind == Kind::Symbol && text == symbol; }
    bool IsWord(std::string_view word) const { return kind == Kind::Name && text == word; }
    bool IsName() const { return kind == Kind::Name || kind == Kind::QuotedName; }
};

// UvlTokens: the words and signs of one line. One token is at hand at any time.
class UvlTokens {
public:
    UvlTokens(const UvlLine& line, ModelProblems& problems);

    const UvlToken& Here() const { return _token; }
    void Advance();
    // Goes on behind the symbol; false, with nothing changed, when another token is here.
    bool Take(std::string_view symbol);
    // Goes on behind everything up to the brace that closes the one that is here, or at the end of the line.
    void SkipBraces();

    // Notes a problem at the place of the token that is here, with the parameters column (from 1) and token;
    // then nothing more is to be had from the line. A quote that is not closed is told in place of it: 60704.
    void Fail(int number);
    // The same for a problem that is not about a token.
    void Fail(int number, const std::vector<std::string>& parameters);

private:
    const UvlLine& _line;
    ModelProblems& _problems;
    UvlToken _token;
    std::size_t _start = 0; // of the token that is here
    std::size_t _at = 0;    // behind it
};

} // namespace trellis
