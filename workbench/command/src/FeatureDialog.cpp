#include "FeatureDialog.h"

#include "CATDlgFrame.h"
#include "OrvKvGroupAndGeometrySub.h"
#include "OrvKvParameterListSub.h"
#include "OrvKvParameterSetListSub.h"
#include "OrvKvTypeAndParameterSetSub.h"

#include <initializer_list>

namespace workbench {

namespace {

constexpr unsigned char withDescriptions = 0;

unsigned char SelectorMode(FeatureCommand::Mode mode) {
    return mode == FeatureCommand::Mode::Sets ? 1 : 0;
}

} // namespace

FeatureDialog::FeatureDialog(CATDialog* parent, FeatureCommand::Mode mode)
    : CATDlgDialog(parent, "FeatureDialog", CATDlgWndOK | CATDlgWndCANCEL), _mode(mode) {}

bool FeatureDialog::Build() {
    _featureFrame = new CATDlgFrame(this, "FeatureFrm");
    if (_featureFrame == nullptr || !BuildFeatureFrame() || !BuildLowerPanel())
        return false;
    CATDialog* const lower = _parameterList != nullptr ? static_cast<CATDialog*>(_parameterList)
                                                       : static_cast<CATDialog*>(_setList);
    Arrange(lower);
    return true;
}

bool FeatureDialog::BuildFeatureFrame() {
    _groupAndGeometry = new OrvKvGroupAndGeometrySub(_featureFrame);
    _selector = new OrvKvTypeAndParameterSetSub(_featureFrame, SelectorMode(_mode));
    if (_groupAndGeometry == nullptr || _selector == nullptr)
        return false;
    _groupAndGeometry->Build();
    _selector->Build();
    return true;
}

bool FeatureDialog::BuildLowerPanel() {
    if (_mode == FeatureCommand::Mode::Sets) {
        _setList = new OrvKvParameterSetListSub(this);
        if (_setList == nullptr)
            return false;
        _setList->Build();
        return true;
    }
    _parameterList = new OrvKvParameterListSub(this, withDescriptions);
    if (_parameterList == nullptr)
        return false;
    _parameterList->Build();
    return true;
}

// The lower panel takes what is left of the height.
void FeatureDialog::Arrange(CATDialog* lowerPanel) {
    for (CATDialog* each : std::initializer_list<CATDialog*>{_featureFrame, lowerPanel}) {
        SetVerticalAttachment(0, CATDlgTopOrLeft, each, nullptr);
        SetVerticalAttachment(1, CATDlgRightOrBottomRelative, each, nullptr);
    }
    SetHorizontalAttachment(0, CATDlgTopOrLeft, _featureFrame, nullptr);
    SetHorizontalAttachment(1, CATDlgTopOrLeft, lowerPanel, nullptr);
    SetHorizontalAttachment(2, CATDlgRightOrBottomRelative, lowerPanel, nullptr);
    for (CATDialog* each : std::initializer_list<CATDialog*>{_groupAndGeometry, _selector}) {
        _featureFrame->SetHorizontalAttachment(0, CATDlgTopOrLeft, each, nullptr);
        _featureFrame->SetHorizontalAttachment(1, CATDlgRightOrBottomRelative, each, nullptr);
    }
    _featureFrame->SetVerticalAttachment(0, CATDlgTopOrLeft, _groupAndGeometry, nullptr);
    _featureFrame->SetVerticalAttachment(1, CATDlgTopOrLeft, _selector, nullptr);
    _featureFrame->SetVerticalAttachment(2, CATDlgRightOrBottomRelative, _selector, nullptr);
}

char* FeatureDialog::GetResourceFilename(int level) const {
    static char name[] = "FeatureDialog";
    return level <= 0 ? name : CATDlgDialog::GetResourceFilename(level - 1);
}

} // namespace workbench
