#pragma once

#include "service/DictionaryImport.h"

#include <string>
#include <vector>

namespace trellis {

// One category or option of a dictionary file, as texts; what the file does not give is empty.
struct DictionaryRecord {
    enum class Kind { Category, Option };

    int line = 0;
    Kind kind = Kind::Category;
    std::string name;
    std::string description;
    std::string category;  // of an option
    std::string mandatory; // flags: yes or no
    std::string exclusive;
    std::string isDefault;
};

// A text of the record, by the word of columns, keys and messages.
struct DictionaryField {
    const char* word;
    std::string DictionaryRecord::*member;
};

inline constexpr DictionaryField dictionaryFields[] = {
    {"name", &DictionaryRecord::name},           {"description", &DictionaryRecord::description},
    {"category", &DictionaryRecord::category},   {"mandatory", &DictionaryRecord::mandatory},
    {"exclusive", &DictionaryRecord::exclusive}, {"default", &DictionaryRecord::isDefault}};

// What a reader makes of a file.
struct DictionaryFile {
    std::vector<DictionaryRecord> records;
    std::vector<ImportProblem> problems;
    bool tellsDefaults = false; // else the default options of known categories stay

    // Notes a problem; the parameters are those of its text.
    void Note(int line, int number, const std::vector<std::string>& parameters = {});
};

// The two forms. Each reads the whole text, which is valid UTF-8 without a byte order mark, and notes every
// row that it cannot make a record of.
DictionaryFile ReadDictionaryCsv(std::string_view text);
DictionaryFile ReadDictionaryJson(std::string_view text);

} // namespace trellis
