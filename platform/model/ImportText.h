#pragma once

#include "model/CsvReader.h"
#include "model/StructureImport.h"

#include <string>
#include <string_view>
#include <vector>

namespace trellis {

// ImportText: the way from a file to a text that can be read, and how its problems are noted: the same for
// every import.
class ImportText {
public:
    using Problems = std::vector<ImportProblem>;

    // Notes a problem; the parameters are those of its text.
    static void Note(Problems& problems, int line, int number,
                     const std::vector<std::string>& parameters = {});
    // Sorts the problems by line and sets 60203 (name, how many). Always false, as the answer of an import.
    static bool Refuse(const ZOLUnicodeString& name, Problems& problems, ZOLGYRError& error);

    // The whole file. False with 60202 (path, reason) when it cannot be read; a file of more than `largest`
    // megabytes is a problem: 60211, 60203.
    static bool ReadFile(const ZOLUnicodeString& path, std::size_t largest, std::string& text,
                         Problems& problems, ZOLGYRError& error);
    // JSON when the name ends in ".json", else CSV.
    static StructureImport::Form FormOf(const ZOLUnicodeString& path);

    // False when the row is faulty, which is noted.
    static bool CheckRow(const CsvReader::Row& row, Problems& problems);
};

} // namespace trellis
