// The texts of a widget: what the program set, else the resource file, else the widget's name.

#include "CATDialog.h"

#include "DialogExtras.h"
#include "ResourceTexts.h"
#include "host/DialogObserver.h"
#include "host/Inspector.h"

namespace {

CATUnicodeString TextOr(const std::optional<std::string>& iText, const CATUnicodeString& iDefault) {
    return iText.has_value() ? CATUnicodeString(iText->c_str()) : iDefault;
}

} // namespace

void CATDialog::SetTitle(const CATUnicodeString& iTitle) {
    Store(Extras().title, iTitle, host::ChangeTitle);
}

CATUnicodeString CATDialog::GetTitle() const {
    if (_extras != nullptr && _extras->title.has_value())
        return *_extras->title;
    const bool isWanted = host::Inspector::ShowsTitle(*this);
    return TextOr(host::ResourceTexts::Text(*this, "Title", isWanted), CATUnicodeString(GetName()));
}

void CATDialog::SetShortHelp(const CATUnicodeString& iText) {
    Store(Extras().shortHelp, iText, host::ChangeHelp);
}

CATUnicodeString CATDialog::GetShortHelp() const {
    if (_extras != nullptr && _extras->shortHelp.has_value())
        return *_extras->shortHelp;
    return TextOr(host::ResourceTexts::Text(*this, "ShortHelp", false), CATUnicodeString());
}

void CATDialog::SetLongHelp(const CATUnicodeString& iText) {
    Store(Extras().longHelp, iText, host::ChangeHelp);
}

CATUnicodeString CATDialog::GetLongHelp() const {
    if (_extras != nullptr && _extras->longHelp.has_value())
        return *_extras->longHelp;
    return TextOr(host::ResourceTexts::Text(*this, "LongHelp", false), CATUnicodeString());
}

void CATDialog::SetHelp(const CATUnicodeString& iText) {
    Store(Extras().help, iText, host::ChangeHelp);
}

CATUnicodeString CATDialog::GetHelp() const {
    if (_extras != nullptr && _extras->help.has_value())
        return *_extras->help;
    return TextOr(host::ResourceTexts::Text(*this, "Help", false), CATUnicodeString());
}

int CATDialog::GetResourceValueFromKey(const CATString& iKey, CATUnicodeString& oValue) const {
    const std::optional<std::string> text = host::ResourceTexts::PanelText(*this, iKey.ConvertToChar());
    if (!text.has_value())
        return 0;
    oValue = CATUnicodeString(text->c_str());
    return 1;
}
