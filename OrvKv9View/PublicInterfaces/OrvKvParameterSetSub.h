#ifndef OrvKvParameterSetSub_H
#define OrvKvParameterSetSub_H

#include "CATDlgFrame.h"

class CATDlgEditor;
class CATDlgPushButton;

// Three buttons with which the user asks for a new parameter set, another name of the set, or its deletion:
// OrvKvNewParameterSetNotification, OrvKvParmSetRenameNotif, OrvKvDeleteParameterSetNotification.
//
// The parent owns it. A copy shares the widgets of the original and must not outlive them.
class OrvKvParameterSetSub : public CATDlgFrame {
  public:
    // iReadOnly other than 0: the buttons report nothing.
    OrvKvParameterSetSub(CATDialog* iParent, int iReadOnly);
    OrvKvParameterSetSub(const OrvKvParameterSetSub& iOther);
    OrvKvParameterSetSub& operator=(const OrvKvParameterSetSub& iOther);
    ~OrvKvParameterSetSub() override;

    // Makes the widgets. Called once; a second call makes nothing.
    void Build();

    // The buttons, which the owner may enable and disable; null before Build.
    CATDlgPushButton* GetCreatePSPB();
    CATDlgPushButton* GetRenamePSPB();
    CATDlgPushButton* GetDeletePSPB();

    // CATDialog
    char* GetResourceFilename(int iLevel) const override;

  private:
    void BuildButtons(CATDlgFrame* iFrame);

    void OnPSNew(CATCommand* iFrom, CATNotification* iNotification, void* iData);
    void OnPSRename(CATCommand* iFrom, CATNotification* iNotification, void* iData);
    void OnPSDelete(CATCommand* iFrom, CATNotification* iNotification, void* iData);

    CATDlgEditor* _pParameterSetNameEdt; // hidden; null before Build, as the buttons are
    CATDlgPushButton* _pNewParameterSetPbt;
    CATDlgPushButton* _pRenameParameterSetPbt;
    CATDlgPushButton* _pDeleteParameterSetPbt;
    int _ReadOnly; // 0: the buttons report
};

#endif
