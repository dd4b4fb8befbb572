#ifndef CATMsgCatalog_H
#define CATMsgCatalog_H

#include "CATString.h"
#include "CATUnicodeString.h"

// Texts in message catalogues, by language.
//
// A catalogue is the file Name.CATNls in one of the folders of the message path, or in the sub-folder of the
// language there; a key that a language lacks is taken from the English file.
class CATMsgCatalog {
  public:
    // The text of iKey in iCatalog with /p1, /p2 ... replaced by the iCount parameters; the key when
    // catalogue or key are missing. A parameter that is not given leaves its place in the text as it is
    // written there.
    static CATUnicodeString BuildMessage(const CATString& iCatalog, const CATString& iKey,
                                         const CATUnicodeString* iParameters = nullptr, int iCount = 0);
    // The same with a text to use instead when catalogue or key are missing.
    static CATUnicodeString BuildMessage(const CATString& iCatalog, const CATString& iKey,
                                         const CATUnicodeString* iParameters, int iCount,
                                         const CATUnicodeString& iDefault);
};

#endif
