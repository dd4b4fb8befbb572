#ifndef CatalogFile_H
#define CatalogFile_H

#include "host/MessageCatalogs.h"

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace host {

// Lets a text be looked up by any kind of string without a copy.
struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view iText) const { return std::hash<std::string_view>()(iText); }
};

typedef std::unordered_map<std::string, std::string, TextHash, std::equal_to<>> CatalogTexts;

// Reads the line form of message and resource files:
//
//     // a comment
//     Key = "text, \"quoted\", with \n a line break, also over
//     several lines";
//
// What does not follow the form is reported with its line and left out; reading goes on after the next
// semicolon or at the next line. The first of two equal keys counts, and the second is reported.
class CatalogFile {
  public:
    // False when the file cannot be read.
    static bool Read(const std::string& iPath, CatalogTexts& oTexts, std::vector<CatalogProblem>& ioProblems);
    static void Parse(const std::string& iPath, const std::string& iContent, CatalogTexts& oTexts,
                      std::vector<CatalogProblem>& ioProblems);
};

} // namespace host

#endif
