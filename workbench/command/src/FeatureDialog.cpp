#include "FeatureDialog.h"

#include "CATDlgCombo.h"
#include "CATDlgEditor.h"
#include "CATDlgLabel.h"
#include "OrvKvTypeAndParameterSetSub.h"

#include <initializer_list>

namespace workbench {

namespace {

constexpr int parametersHeight = 14; // lines
constexpr int parametersWidth = 60;  // characters

unsigned char SelectorMode(FeatureCommand::Mode mode) {
    return mode == FeatureCommand::Mode::Sets ? 1 : 0;
}

} // namespace

FeatureDialog::FeatureDialog(CATDialog* parent, FeatureCommand::Mode mode)
    : CATDlgDialog(parent, "FeatureDialog", CATDlgWndOK | CATDlgWndCANCEL), _mode(mode) {}

bool FeatureDialog::Build() {
    auto* const groupLabel = new CATDlgLabel(this, "GroupLab");
    _groups = new CATDlgCombo(this, "GroupCmb", CATDlgCmbDropDown);
    auto* const selectorLabel = new CATDlgLabel(this, "SelectorLab");
    _selector = new OrvKvTypeAndParameterSetSub(this, SelectorMode(_mode));
    auto* const parametersLabel = new CATDlgLabel(this, "ParametersLab");
    _parameters = new CATDlgEditor(this, "ParametersEdt", CATDlgEdtMultiline | CATDlgEdtReadOnly);
    for (const CATDialog* widget : std::initializer_list<const CATDialog*>{
             groupLabel, _groups, selectorLabel, _selector, parametersLabel, _parameters})
        if (widget == nullptr)
            return false;
    _selector->Build();
    if (_mode == FeatureCommand::Mode::Sets)
        _selector->ShowParameterSetSelector();
    _parameters->SetVisibleTextHeight(parametersHeight);
    _parameters->SetVisibleTextWidth(parametersWidth);
    Arrange(groupLabel, selectorLabel, parametersLabel);
    return true;
}

// One column; the parameters take what is left of the height.
void FeatureDialog::Arrange(CATDialog* groupLabel, CATDialog* selectorLabel, CATDialog* parametersLabel) {
    int row = 0;
    for (CATDialog* widget : std::initializer_list<CATDialog*>{groupLabel, _groups, selectorLabel, _selector,
                                                               parametersLabel, _parameters}) {
        SetHorizontalAttachment(row++, CATDlgTopOrLeft, widget, nullptr);
        SetVerticalAttachment(0, CATDlgTopOrLeft, widget, nullptr);
        SetVerticalAttachment(1, CATDlgRightOrBottomRelative, widget, nullptr);
    }
    SetHorizontalAttachment(row, CATDlgRightOrBottomRelative, _parameters, nullptr);
}

void FeatureDialog::Acknowledge(const CATUnicodeString& text) {
    if (_parameters->GetText() == text)
        return;
    _parameters->SetText(text);
}

char* FeatureDialog::GetResourceFilename(int level) const {
    static char name[] = "FeatureDialog";
    return level <= 0 ? name : CATDlgDialog::GetResourceFilename(level - 1);
}

} // namespace workbench
