#include "CATError.h"

#include "LastError.h"
#include "ReturnJournal.h"
#include "host/MessageCatalogs.h"

#include <cstdarg>
#include <string>

CATImplementClass(CATError, Implementation, CATBaseUnknown, CATNull);

CATError::CATError(const char* iKey, const char* iCatalog) : _key(iKey), _catalog(iCatalog) {}

CATError::~CATError() = default;

void CATError::SetNLSParameters(int iCount, CATUnicodeString* iFirst, ...) {
    _parameters.clear();
    va_list others;
    va_start(others, iFirst);
    for (int number = 0; number < iCount; ++number) {
        const CATUnicodeString* text = number == 0 ? iFirst : va_arg(others, CATUnicodeString*);
        _parameters.push_back(text == nullptr ? CATUnicodeString() : *text);
    }
    va_end(others);
}

CATUnicodeString CATError::Text(const char* iSuffix) const {
    const std::string key = std::string(_key.ConvertToChar()) + iSuffix;
    const std::optional<std::string> text = host::MessageCatalogs::Text(_catalog.ConvertToChar(), key);
    if (!text.has_value())
        return CATUnicodeString();
    std::vector<std::string> parameters;
    for (const CATUnicodeString& parameter : _parameters)
        parameters.emplace_back(parameter.ConvertToChar());
    return CATUnicodeString(host::MessageCatalogs::Fill(*text, parameters).c_str());
}

CATUnicodeString CATError::GetNLSMessage() const {
    CATUnicodeString message;
    const auto join = [&message](const CATUnicodeString& iPart) {
        if (iPart.GetLengthInByte() == 0)
            return;
        if (message.GetLengthInByte() > 0)
            message.Append("\n");
        message.Append(iPart);
    };
    join(GetNLSRequest());
    join(GetNLSDiagnostic());
    join(GetNLSAdvice());
    if (message.GetLengthInByte() == 0)
        message = Text("");
    if (message.GetLengthInByte() == 0)
        for (const CATUnicodeString& parameter : _parameters)
            join(parameter);
    if (message.GetLengthInByte() == 0)
        message = CATUnicodeString(_key);
    return message;
}

CATUnicodeString CATError::GetNLSRequest() const {
    return Text(".Request");
}

CATUnicodeString CATError::GetNLSDiagnostic() const {
    return Text(".Diagnostic");
}

CATUnicodeString CATError::GetNLSAdvice() const {
    return Text(".Advice");
}

CATUnicodeString CATError::GetNLSSource() const {
    const CATUnicodeString source = Text(".Source");
    return source.GetLengthInByte() > 0 ? source : CATUnicodeString(IsA());
}

HRESULT CATError::GetReturn(int iKind, CATError* iError, void*, const char* iFile, int iLine) {
    host::ReturnJournal::Add(iKind, iFile, iLine);
    if (iKind == CATReturnKindSuccess)
        return S_OK;
    if (iKind != CATReturnKindError) {
        CATCleanLastError(); // an older error is not the reason of this failure
        return E_FAIL;
    }
    if (iError != nullptr && iError->_sourceLine == 0) {
        iError->_sourceFile = CATString(iFile);
        iError->_sourceLine = iLine;
    }
    host::LastError::Replace(iError);
    return E_FAIL;
}

CATError* CATError::CATGetLastError(HRESULT iResult, CATError*) {
    CATError* const error = iResult == E_FAIL ? host::LastError::Get() : nullptr;
    if (error != nullptr)
        error->AddRef();
    return error;
}

void CATError::CATCleanLastError() {
    host::LastError::Replace(nullptr);
}
