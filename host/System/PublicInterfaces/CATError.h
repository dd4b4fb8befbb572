#ifndef CATError_H
#define CATError_H

#include "CATBaseUnknown.h"
#include "CATMacForIUnknown.h"
#include "CATString.h"
#include "CATUnicodeString.h"

#include <vector>

namespace host {
class ErrorInspection;
}

// How grave an error is.
enum CATErrorType { CATErrorTypeWarning = 1, CATErrorTypeCritical = 2, CATErrorTypeFatal = 3 };

// Kinds of result that CATError::GetReturn makes.
enum CATReturnKind { CATReturnKindSuccess = 1, CATReturnKindError = 2 };

// An error that goes with a failing result or is thrown: a message key, the catalogue that has the text, and
// the parameters of the text.
//
// A failing result has one value; the error object that belongs to it is the last error, a single object that
// each failing return replaces and that successes leave alone.
class CATError : public CATBaseUnknown {
    CATDeclareClass;

  public:
    // iKey is the message key without suffix, iCatalog the name of the catalogue without extension.
    explicit CATError(const char* iKey = "", const char* iCatalog = "");
    ~CATError() override;

    // Keeps copies of iCount texts, given by address. A null address counts as the empty text.
    void SetNLSParameters(int iCount, CATUnicodeString* iFirst, ...);
    void SetType(CATErrorType iType) { _type = iType; }
    CATErrorType GetType() const { return _type; }

    // The complete message: request, diagnostic and advice, as far as the catalogue has them, each on a line
    // of its own; else the text of the plain key; else the parameters; else the key.
    CATUnicodeString GetNLSMessage() const;
    // The single parts; empty when the catalogue has none.
    CATUnicodeString GetNLSRequest() const;
    CATUnicodeString GetNLSDiagnostic() const;
    CATUnicodeString GetNLSAdvice() const;
    // Title for a message window: the catalogue's text for key + ".Source", else the class name.
    CATUnicodeString GetNLSSource() const;

    const char* GetMsgId() const { return _key.ConvertToChar(); }
    const char* GetMsgCatalog() const { return _catalog.ConvertToChar(); }

    // Makes a result. Kind 1: S_OK, nothing attached. Kind 2: takes iError over, makes it the last error and
    // returns E_FAIL. Any other kind: E_FAIL without an error object;
    // the last error is forgotten. iFile and iLine tell where.
    static HRESULT GetReturn(int iKind, CATError* iError, void* iReserved, const char* iFile, int iLine);

    // The error behind a failing result of GetReturn, with a reference for the caller; null for any other
    // result and when there is none.
    static CATError* CATGetLastError(HRESULT iResult, CATError* iReserved = nullptr);
    // Forgets the last error and releases it.
    static void CATCleanLastError();

  private:
    friend class host::ErrorInspection;

    CATUnicodeString Text(const char* iSuffix) const;

    CATString _key;
    CATString _catalog;
    CATErrorType _type = CATErrorTypeCritical;
    std::vector<CATUnicodeString> _parameters;
    CATString _sourceFile; // where a failing return first named the error
    int _sourceLine = 0;
};

// The documented short forms of GetReturn.
#define CATReturnSuccess                                                                                     \
    return CATError::GetReturn(CATReturnKindSuccess, nullptr, nullptr, __FILE__, __LINE__)
#define CATReturnFailure return CATError::GetReturn(0, nullptr, nullptr, __FILE__, __LINE__)
#define CATReturnError(iError)                                                                               \
    return CATError::GetReturn(CATReturnKindError, iError, nullptr, __FILE__, __LINE__)

#endif
