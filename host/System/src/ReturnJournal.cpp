#include "ReturnJournal.h"

#include "LastError.h"
#include "host/ErrorInspection.h"

namespace host {

namespace {

struct LastCall {
    int kind = 0;
    std::string file;
    int line = 0;
    int count = 0;
};

LastCall lastCall;

} // namespace

void ReturnJournal::Add(int iKind, const char* iFile, int iLine) {
    lastCall.kind = iKind;
    lastCall.file = iFile == nullptr ? "" : iFile;
    lastCall.line = iLine;
    ++lastCall.count;
}

const CATError* ErrorInspection::LastError() {
    return host::LastError::Get();
}

ReturnRecord ErrorInspection::LastReturn() {
    return ReturnRecord{lastCall.kind, lastCall.file, lastCall.line};
}

int ErrorInspection::ReturnCount() {
    return lastCall.count;
}

ReturnRecord ErrorInspection::Origin(const CATError& iError) {
    return ReturnRecord{iError._sourceLine == 0 ? 0 : 2, iError._sourceFile.ConvertToChar(),
                        iError._sourceLine};
}

std::vector<std::string> ErrorInspection::Parameters(const CATError& iError) {
    std::vector<std::string> texts;
    for (const CATUnicodeString& parameter : iError._parameters)
        texts.emplace_back(parameter.ConvertToChar());
    return texts;
}

} // namespace host
