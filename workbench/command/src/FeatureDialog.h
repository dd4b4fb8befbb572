#pragma once

// The dialog of the feature command: a group, the library's selector of types and parameter sets, and what
// the command has understood. Texts come from the resource file FeatureDialog.

#include "CATDlgDialog.h"
#include "workbench/FeatureCommand.h"

class CATDlgCombo;
class CATDlgEditor;
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

    CATDlgCombo* GroupCombo() const { return _groups; }
    OrvKvTypeAndParameterSetSub* Selector() const { return _selector; }
    /// Shows what the command has understood.
    void Acknowledge(const CATUnicodeString& text);

    // CATDialog
    char* GetResourceFilename(int level) const override;

  private:
    void Arrange(CATDialog* groupLabel, CATDialog* selectorLabel, CATDialog* parametersLabel);

    FeatureCommand::Mode _mode;
    CATDlgCombo* _groups = nullptr; ///< child of the dialog, like the next two
    OrvKvTypeAndParameterSetSub* _selector = nullptr;
    CATDlgEditor* _parameters = nullptr;
};

} // namespace workbench
