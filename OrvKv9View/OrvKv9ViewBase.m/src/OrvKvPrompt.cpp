#include "OrvKvPrompt.h"

#include "CATApplicationFrame.h"
#include "CATDlgNotify.h"
#include "CATError.h"
#include "OrvKvTrace.h"

namespace {

// Null where memory is short.
CATDlgNotify* NewNotify(const char* iName, CATDlgStyle iStyle) {
    return new CATDlgNotify(CATApplicationFrame::GetFrame()->GetMainWindow(), iName, iStyle);
}

void ShowAndDiscard(CATDlgNotify& ioNotify, const CATUnicodeString& iText, const CATUnicodeString& iTitle) {
    ioNotify.DisplayBlocked(iText, iTitle);
    ioNotify.RequestDelayedDestruction();
}

void ShowError(const CATUnicodeString& iText, const CATUnicodeString& iTitle) {
    CATDlgNotify* const notify = NewNotify("Error", CATDlgNfyError);
    if (notify != nullptr)
        ShowAndDiscard(*notify, iText, iTitle);
}

} // namespace

void OrvKvPrompt::Error(CATError* iError) {
    if (iError == nullptr) {
        OrvKvTrace::Print(OrvKvTraceViewBase, OrvKvTraceDetail, "Error in displaying error");
        return;
    }
    const bool isUpdateError = iError->IsAKindOf("CATMfErrUpdate") != 0;
    ShowError(isUpdateError ? iError->GetNLSDiagnostic() : iError->GetNLSMessage(), iError->GetNLSSource());
    iError->Release();
}

void OrvKvPrompt::Error(long iRC) {
    CATError* const error = CATError::CATGetLastError(iRC, nullptr);
    if (error == nullptr)
        return;
    ShowError(error->GetNLSMessage(), error->GetNLSSource());
    error->Release();
    CATError::CATCleanLastError();
}

void OrvKvPrompt::Warning(const CATUnicodeString& iText) {
    if (iText.GetLengthInChar() < 1) {
        OrvKvTrace::Print(OrvKvTraceViewBase, OrvKvTraceDetail, "Error in getting message containt");
        return;
    }
    CATDlgNotify* const notify = NewNotify("Warning", CATDlgNfyWarning);
    if (notify != nullptr)
        ShowAndDiscard(*notify, iText, notify->GetTitle());
}
