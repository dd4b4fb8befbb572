#ifndef host_MessageCatalogs_H
#define host_MessageCatalogs_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host {

// A place in a message or resource file that does not follow the line form.
struct CatalogProblem {
    std::string file;
    int line = 0;
    std::string message;
};

// The message (.CATNls) and resource (.CATRsc) files of the process: where they are looked for, in which
// language, what was wrong with them and which texts were asked for in vain.
//
// Folders are searched in order: those added here, then those of the environment variable CATMsgCatalogPath
// (separated by ':'). The language is the name of the sub-folder, "German" for instance; empty means English,
// the files in the folder itself. A file is read once and kept until Reset or a change of path or language.
class MessageCatalogs {
  public:
    static void AddFolder(const std::string& iFolder);
    // All folders in the order of search.
    static std::vector<std::string> Folders();
    static void SetLanguage(const std::string& iLanguage);
    static const std::string& Language();

    // Text of iKey in iCatalog: the language first, then English.
    static std::optional<std::string> Text(const std::string& iCatalog, const std::string& iKey);
    // The same without a copy; null when there is none. Valid until Reset or a change of path or language.
    static const std::string* FindText(std::string_view iCatalog, std::string_view iKey);
    // The text of iKey, or of iOtherKey where no language has the first one.
    static const std::string* FindText(std::string_view iCatalog, std::string_view iKey,
                                       std::string_view iOtherKey);
    // Value of iKey in the resource file of iName; resource files have no languages.
    static std::optional<std::string> Resource(const std::string& iName, const std::string& iKey);
    // The same without a copy, as FindText gives it.
    static const std::string* FindResource(std::string_view iName, std::string_view iKey,
                                           std::string_view iOtherKey);
    // All keys of a catalogue in one language, in alphabetical order; empty without a file.
    static std::vector<std::string> Keys(const std::string& iCatalog, const std::string& iLanguage);

    // iText with /p1 or /P1 ... /p9 replaced by the parameters; a place without parameter stays as written.
    static std::string Fill(const std::string& iText, const std::vector<std::string>& iParameters);

    // What could not be read so far; the rest of each file is in use.
    static const std::vector<CatalogProblem>& Problems();

    // Texts that a widget wanted to show and that no file has, as "Owner: key"; each is listed once.
    static const std::vector<std::string>& Missing();
    static void RecordMissing(const std::string& iText);

    // Changes whenever a text may have changed; lets a widget keep the text it looked up.
    static unsigned Generation();

    // Back to the state at the start of the process: no folders, English, nothing read, nothing recorded.
    static void Reset();
};

} // namespace host

#endif
