#pragma once

// The dialog of the feature command: above, side by side, the group with the input geometries and the
// selector of types and parameter sets; below, the parameters of the feature or the parameter sets of the
// type. Texts come from the resource file FeatureDialog.

#include "CATDlgDialog.h"
#include "workbench/FeatureCommand.h"

class CATDlgFrame;
class OrvKvGroupAndGeometrySub;
class OrvKvParameterListSub;
class OrvKvParameterSetListSub;
class OrvKvTypeAndParameterSetSub;

namespace workbench {

class FeatureDialog : public CATDlgDialog {
  public:
    /// The parent owns the dialog. It starts hidden and empty.
    FeatureDialog(CATDialog* parent, FeatureCommand::Mode mode);
    FeatureDialog(const FeatureDialog&) = delete;
    FeatureDialog& operator=(const FeatureDialog&) = delete;

    /// Makes the widgets; once. False where memory is short, and the dialog is then of no use.
    [[nodiscard]] bool Build();

    OrvKvGroupAndGeometrySub* GroupAndGeometry() const { return _groupAndGeometry; }
    OrvKvTypeAndParameterSetSub* Selector() const { return _selector; }
    /// One of the two: the list in mode Parameters, the tables in mode Sets.
    OrvKvParameterListSub* ParameterList() const { return _parameterList; }
    OrvKvParameterSetListSub* SetList() const { return _setList; }

    // CATDialog
    char* GetResourceFilename(int level) const override;

  private:
    bool BuildFeatureFrame();
    bool BuildLowerPanel();
    void Arrange(CATDialog* lowerPanel);

    FeatureCommand::Mode _mode;
    CATDlgFrame* _featureFrame = nullptr; ///< child of the dialog, like all that follow
    OrvKvGroupAndGeometrySub* _groupAndGeometry = nullptr;
    OrvKvTypeAndParameterSetSub* _selector = nullptr;
    OrvKvParameterListSub* _parameterList = nullptr;
    OrvKvParameterSetListSub* _setList = nullptr;
};

} // namespace workbench
