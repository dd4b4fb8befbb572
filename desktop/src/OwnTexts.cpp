#include "OwnTexts.h"

#include "host/MessageCatalogs.h"

#include <algorithm>
#include <iterator>

namespace desktop {

namespace {

// The texts of one language, named as the host names it, in the order of OwnText.
struct Language {
    const char* name;
    const char* texts[6];
};

constexpr Language languages[] = {
    {"", {"OK", "Cancel", "Apply", "Close", "Help", "Copy"}},
    {"German", {"OK", "Abbrechen", "Anwenden", "Schließen", "Hilfe", "Kopieren"}},
    {"French", {"OK", "Annuler", "Appliquer", "Fermer", "Aide", "Copier"}},
    {"Japanese", {"OK", "キャンセル", "適用", "閉じる", "ヘルプ", "コピー"}},
};

const Language& CurrentLanguage() {
    const auto* const found =
        std::find_if(std::begin(languages), std::end(languages), [](const Language& iLanguage) {
            return host::MessageCatalogs::Language() == iLanguage.name;
        });
    return found == std::end(languages) ? languages[0] : *found;
}

} // namespace

QString InCurrentLanguage(OwnText iText) {
    return QString::fromUtf8(CurrentLanguage().texts[static_cast<std::size_t>(iText)]);
}

} // namespace desktop
