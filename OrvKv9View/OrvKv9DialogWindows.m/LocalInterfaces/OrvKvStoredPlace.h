#ifndef OrvKvStoredPlace_H
#define OrvKvStoredPlace_H

class CATDialog;

// The place of the main panel that the add-in's preferences keep. What they cannot give or keep is passed
// over in silence.
class OrvKvStoredPlace {
  public:
    // Puts the dialog at the stored left and top, at 0, 0 where nothing is stored. The extent is the dialog's
    // own affair.
    static void Restore(CATDialog& ioDialog, int iHeight, int iWidth);
    // Stores where the dialog is.
    static void Store(const CATDialog& iDialog);
};

#endif
