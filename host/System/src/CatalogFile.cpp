#include "CatalogFile.h"

#include <cctype>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>

namespace host {

namespace {

bool IsKeyCharacter(char iCharacter) {
    return iCharacter != '=' && iCharacter != '"' && iCharacter != ';';
}

// A cursor over the content of one file that counts lines.
class Reader {
  public:
    Reader(const std::string& iPath, const std::string& iContent, std::vector<CatalogProblem>& ioProblems)
        : _path(iPath), _content(iContent), _problems(ioProblems) {
        if (_content.compare(0, 3, "\xEF\xBB\xBF") == 0)
            _at = 3;
    }

    void ReadAll(CatalogTexts& oTexts) {
        for (SkipBlanksAndComments(); !AtEnd(); SkipBlanksAndComments())
            ReadEntry(oTexts);
    }

  private:
    void ReadEntry(CatalogTexts& oTexts) {
        const int line = _line;
        const std::string key = ReadKey();
        if (key.empty())
            return Complain(line, "a key is expected");
        if (AtEnd() || Peek() != '=')
            return Complain(line, "'=' is expected after the key '" + key + "'");
        Next();
        SkipBlanksAndComments();
        const std::optional<std::string> text = ReadText(line, key);
        if (!text.has_value())
            return;
        SkipBlanksAndComments();
        if (AtEnd() || Peek() != ';')
            Report(line, "';' is missing after the text of '" + key + "'");
        else
            Next();
        if (!oTexts.emplace(key, *text).second)
            Report(line, "the key '" + key + "' is there already");
    }

    std::string ReadKey() {
        std::string key;
        while (!AtEnd() && Peek() != '\n' && IsKeyCharacter(Peek()))
            key.push_back(Next());
        while (!key.empty() && std::isspace(static_cast<unsigned char>(key.back())) != 0)
            key.pop_back();
        return key;
    }

    std::optional<std::string> ReadText(int iLine, const std::string& iKey) {
        if (AtEnd() || Peek() != '"') {
            const std::string message = "the text of '" + iKey + "' is not in quotes";
            if (_line == iLine)
                Complain(iLine, message);
            else
                Report(iLine, message); // the line behind it is another entry
            return std::nullopt;
        }
        Next();
        std::string text;
        while (!AtEnd() && Peek() != '"')
            text += ReadCharacter();
        if (AtEnd()) {
            Report(iLine, "the text of '" + iKey + "' has no closing quote");
            return std::nullopt;
        }
        Next();
        return text;
    }

    std::string ReadCharacter() {
        const char character = Next();
        if (character == '\r' && !AtEnd() && Peek() == '\n')
            return std::string();
        if (character != '\\' || AtEnd())
            return std::string(1, character);
        const char escaped = Next();
        if (escaped == 'n')
            return "\n";
        if (escaped == 't')
            return "\t";
        if (escaped == '"' || escaped == '\\')
            return std::string(1, escaped);
        return std::string{'\\', escaped};
    }

    void SkipBlanksAndComments() {
        while (!AtEnd()) {
            if (std::isspace(static_cast<unsigned char>(Peek())) != 0)
                Next();
            else if (_content.compare(_at, 2, "//") == 0)
                SkipLine();
            else
                return;
        }
    }

    void SkipLine() {
        while (!AtEnd() && Next() != '\n') {
        }
    }

    void Complain(int iLine, const std::string& iMessage) {
        Report(iLine, iMessage);
        while (!AtEnd() && Peek() != '\n' && Peek() != ';')
            Next();
        if (!AtEnd())
            Next();
    }

    void Report(int iLine, const std::string& iMessage) {
        _problems.push_back(CatalogProblem{_path, iLine, iMessage});
    }

    bool AtEnd() const { return _at >= _content.size(); }
    char Peek() const { return _content[_at]; }
    char Next() {
        const char character = _content[_at++];
        if (character == '\n')
            ++_line;
        return character;
    }

    const std::string& _path;
    const std::string& _content;
    std::vector<CatalogProblem>& _problems;
    std::size_t _at = 0;
    int _line = 1;
};

} // namespace

bool CatalogFile::Read(const std::string& iPath, CatalogTexts& oTexts,
                       std::vector<CatalogProblem>& ioProblems) {
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(iPath, ignored))
        return false;
    std::ifstream file(iPath, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    if (!file && content.str().empty() && std::filesystem::file_size(iPath, ignored) > 0) {
        ioProblems.push_back(CatalogProblem{iPath, 0, "the file cannot be read"});
        return false;
    }
    Parse(iPath, content.str(), oTexts, ioProblems);
    return true;
}

void CatalogFile::Parse(const std::string& iPath, const std::string& iContent, CatalogTexts& oTexts,
                        std::vector<CatalogProblem>& ioProblems) {
    Reader(iPath, iContent, ioProblems).ReadAll(oTexts);
}

} // namespace host
