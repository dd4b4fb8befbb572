// The texts of a widget: what the program set, else the resource file, else the widget's name.

#include "CATDialog.h"

#include "DialogExtras.h"
#include "ResourceTexts.h"
#include "host/DialogObserver.h"
#include "host/Inspector.h"

namespace {

// The text of a resource file, empty where there is none.
CATUnicodeString ResourceText(const CATDialog& iWidget, const char* iKeyword) {
    const std::string* const text = host::ResourceTexts::Text(iWidget, iKeyword);
    return text == nullptr ? CATUnicodeString() : CATUnicodeString(text->c_str());
}

} // namespace

void CATDialog::SetTitle(const CATUnicodeString& iTitle) {
    Store(Extras().title, iTitle, host::ChangeTitle);
}

CATUnicodeString CATDialog::GetTitle() const {
    if (_extras != nullptr && _extras->title.has_value())
        return *_extras->title;
    if (const std::string* const text = host::ResourceTexts::Text(*this, "Title"))
        return text->c_str();
    if (host::Inspector::ShowsTitle(*this))
        host::ResourceTexts::RecordMissing(*this, "Title");
    return GetName();
}

void CATDialog::SetShortHelp(const CATUnicodeString& iText) {
    Store(Extras().shortHelp, iText, host::ChangeHelp);
}

CATUnicodeString CATDialog::GetShortHelp() const {
    if (_extras != nullptr && _extras->shortHelp.has_value())
        return *_extras->shortHelp;
    return ResourceText(*this, "ShortHelp");
}

void CATDialog::SetLongHelp(const CATUnicodeString& iText) {
    Store(Extras().longHelp, iText, host::ChangeHelp);
}

CATUnicodeString CATDialog::GetLongHelp() const {
    if (_extras != nullptr && _extras->longHelp.has_value())
        return *_extras->longHelp;
    return ResourceText(*this, "LongHelp");
}

void CATDialog::SetHelp(const CATUnicodeString& iText) {
    Store(Extras().help, iText, host::ChangeHelp);
}

CATUnicodeString CATDialog::GetHelp() const {
    if (_extras != nullptr && _extras->help.has_value())
        return *_extras->help;
    return ResourceText(*this, "Help");
}

int CATDialog::GetResourceValueFromKey(const CATString& iKey, CATUnicodeString& oValue) const {
    const std::string* const text = host::ResourceTexts::PanelText(*this, iKey.ConvertToChar());
    if (text == nullptr)
        return 0;
    oValue = CATUnicodeString(text->c_str());
    return 1;
}
