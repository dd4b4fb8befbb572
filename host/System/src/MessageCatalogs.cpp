#include "host/MessageCatalogs.h"

#include "CatalogFile.h"
#include "host/FaultPoints.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <sstream>

namespace host {

namespace {

constexpr const char messages[] = ".CATNls";
constexpr const char resources[] = ".CATRsc";

struct State {
    std::vector<std::string> folders;
    std::string language;
    std::unordered_map<std::string, CatalogTexts> files; // by "language/name.ext"
    std::vector<CatalogProblem> problems;
    std::vector<std::string> missing;
};

unsigned generation = 1;

State& Current() {
    static auto* state = new State;
    return *state;
}

std::vector<std::string> EnvironmentFolders() {
    std::vector<std::string> folders;
    const char* path = std::getenv("CATMsgCatalogPath");
    if (path == nullptr)
        return folders;
    std::istringstream parts{std::string(path)};
    for (std::string folder; std::getline(parts, folder, ':');)
        if (!folder.empty())
            folders.push_back(folder);
    return folders;
}

// A name that would leave the message folders names no file.
bool IsPlainName(const std::string& iName) {
    return !iName.empty() && iName.find_first_of("/\\") == std::string::npos && iName != "." && iName != "..";
}

void ForgetFiles() {
    Current().files.clear();
    ++generation;
}

// A file that is read again reports its problems anew.
void ForgetProblemsOf(const std::string& iPath) {
    std::vector<CatalogProblem>& problems = Current().problems;
    problems.erase(
        std::remove_if(problems.begin(), problems.end(),
                       [&iPath](const CatalogProblem& iProblem) { return iProblem.file == iPath; }),
        problems.end());
}

void ReadFrom(const std::vector<std::string>& iFolders, const std::string& iFile, CatalogTexts& ioTexts) {
    for (const std::string& folder : iFolders) {
        std::string path = folder;
        path.append("/").append(iFile);
        ForgetProblemsOf(path);
        CatalogTexts texts;
        if (CatalogFile::Read(path, texts, Current().problems))
            ioTexts.merge(texts);
    }
}

bool HasPlainNames(const std::string& iLanguage, const std::string& iName) {
    return IsPlainName(iName) && (iLanguage.empty() || IsPlainName(iLanguage));
}

const CatalogTexts& ReadTexts(const std::string& iLanguage, const std::string& iName,
                              const char* iExtension) {
    static const CatalogTexts none;
    if (!HasPlainNames(iLanguage, iName))
        return none;
    const std::string file = (iLanguage.empty() ? std::string() : iLanguage + "/") + iName + iExtension;
    const auto known = Current().files.find(file);
    if (known != Current().files.end())
        return known->second;
    CatalogTexts& texts = Current().files[file];
    ReadFrom(MessageCatalogs::Folders(), file, texts);
    return texts;
}

// The file that was asked for last: a list asks the same one for each of its rows. English is kept apart from
// the language and from the resources, which are asked for in turn.
struct LastFile {
    std::string language;
    std::string name;
    const char* extension = nullptr; // a literal
    const CatalogTexts* texts = nullptr;
    unsigned generation = 0;
};

const CatalogTexts& TextsOf(const std::string& iLanguage, std::string_view iName, const char* iExtension) {
    static auto* all = new LastFile[3];
    LastFile* const last = iExtension == resources ? all : iLanguage.empty() ? all + 1 : all + 2;
    if (last->generation == generation && last->extension == iExtension && last->name == iName &&
        last->language == iLanguage)
        return *last->texts;
    const std::string name(iName);
    const CatalogTexts& texts = ReadTexts(iLanguage, name, iExtension);
    *last = {iLanguage, name, iExtension, &texts, generation};
    return texts;
}

const std::string* Find(const CatalogTexts& iTexts, std::string_view iKey) {
    const auto found = iTexts.find(iKey);
    return found == iTexts.end() ? nullptr : &found->second;
}

const std::string* FindEither(const CatalogTexts& iTexts, std::string_view iKey, std::string_view iOtherKey) {
    const std::string* const text = Find(iTexts, iKey);
    return text != nullptr || iKey.size() == iOtherKey.size() ? text : Find(iTexts, iOtherKey);
}

std::optional<std::string> CopyOf(const std::string* iText) {
    return iText == nullptr ? std::nullopt : std::optional<std::string>(*iText);
}

} // namespace

void MessageCatalogs::AddFolder(const std::string& iFolder) {
    Current().folders.push_back(iFolder);
    ForgetFiles();
}

std::vector<std::string> MessageCatalogs::Folders() {
    std::vector<std::string> folders = Current().folders;
    for (const std::string& folder : EnvironmentFolders())
        folders.push_back(folder);
    return folders;
}

void MessageCatalogs::SetLanguage(const std::string& iLanguage) {
    if (Current().language == iLanguage)
        return;
    Current().language = iLanguage;
    ForgetFiles();
}

const std::string& MessageCatalogs::Language() {
    return Current().language;
}

std::optional<std::string> MessageCatalogs::Text(const std::string& iCatalog, const std::string& iKey) {
    return CopyOf(FindText(iCatalog, iKey));
}

const std::string* MessageCatalogs::FindText(std::string_view iCatalog, std::string_view iKey) {
    return FindText(iCatalog, iKey, iKey);
}

const std::string* MessageCatalogs::FindText(std::string_view iCatalog, std::string_view iKey,
                                             std::string_view iOtherKey) {
    if (FaultPoints::Fails("message look-up"))
        return nullptr;
    const std::string& language = Current().language;
    const CatalogTexts& english = TextsOf(std::string(), iCatalog, messages);
    if (language.empty())
        return FindEither(english, iKey, iOtherKey);
    const CatalogTexts& translated = TextsOf(language, iCatalog, messages);
    for (const std::string_view key : {iKey, iOtherKey})
        for (const CatalogTexts* texts : {&translated, &english})
            if (const std::string* const text = Find(*texts, key))
                return text;
    return nullptr;
}

std::optional<std::string> MessageCatalogs::Resource(const std::string& iName, const std::string& iKey) {
    return CopyOf(FindResource(iName, iKey, iKey));
}

const std::string* MessageCatalogs::FindResource(std::string_view iName, std::string_view iKey,
                                                 std::string_view iOtherKey) {
    if (FaultPoints::Fails("resource look-up"))
        return nullptr;
    return FindEither(TextsOf(std::string(), iName, resources), iKey, iOtherKey);
}

std::vector<std::string> MessageCatalogs::Keys(const std::string& iCatalog, const std::string& iLanguage) {
    std::vector<std::string> keys;
    for (const auto& entry : TextsOf(iLanguage, iCatalog, messages))
        keys.push_back(entry.first);
    std::sort(keys.begin(), keys.end());
    return keys;
}

std::string MessageCatalogs::Fill(const std::string& iText, const std::vector<std::string>& iParameters) {
    std::string filled;
    for (std::size_t at = 0; at < iText.size(); ++at) {
        const bool isPlace = iText[at] == '/' && at + 2 < iText.size() &&
                             (iText[at + 1] == 'p' || iText[at + 1] == 'P') && iText[at + 2] >= '1' &&
                             iText[at + 2] <= '9';
        const std::size_t number = isPlace ? static_cast<std::size_t>(iText[at + 2] - '0') : 0;
        if (number == 0 || number > iParameters.size()) {
            filled.push_back(iText[at]);
            continue;
        }
        filled += iParameters[number - 1];
        at += 2;
    }
    return filled;
}

const std::vector<CatalogProblem>& MessageCatalogs::Problems() {
    return Current().problems;
}

const std::vector<std::string>& MessageCatalogs::Missing() {
    return Current().missing;
}

void MessageCatalogs::RecordMissing(const std::string& iText) {
    std::vector<std::string>& missing = Current().missing;
    if (std::find(missing.begin(), missing.end(), iText) == missing.end())
        missing.push_back(iText);
}

unsigned MessageCatalogs::Generation() {
    return generation;
}

void MessageCatalogs::Reset() {
    Current() = State();
    ++generation;
}

} // namespace host
