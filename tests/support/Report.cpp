#include "Report.h"

#include "CATInternalError.h"
#include "host/ErrorInspection.h"

#include <gtest/gtest.h>
#include <ostream>

namespace support {

namespace {

constexpr char olderKey[] = "AnOlderError";

std::string NameOf(long iResult) {
    if (iResult == S_OK)
        return "S_OK";
    return iResult == E_FAIL ? "E_FAIL" : std::to_string(iResult);
}

void LeaveOlderError() {
    CATError::GetReturn(CATReturnKindError, new CATInternalError(olderKey, "Older"), nullptr, "older", 1);
}

std::string Place(const std::string& iLine, const std::string& iSource) {
    return " at line " + iLine + " in file " + iSource + "\n";
}

TraceLines WithoutLineNumbers(TraceLines iTraces, const host::ReturnRecord& iLast) {
    for (host::TraceLine& trace : iTraces)
        if (trace.text == Place(std::to_string(iLast.line), iLast.file))
            trace.text = Place("LINE", iLast.file);
    return iTraces;
}

void DescribeError(const CATError& iError, Report& ioReport) {
    ioReport.errorClass = iError.IsA();
    ioReport.key = iError.GetMsgId();
    ioReport.catalogue = iError.GetMsgCatalog();
    ioReport.parameters = host::ErrorInspection::Parameters(iError);
}

} // namespace

void PrintTo(const Report& iReport, std::ostream* ioStream) {
    *ioStream << iReport.result << " through " << iReport.returns << " return(s) in '" << iReport.source
              << "'\n  traces " << testing::PrintToString(iReport.traces) << "\n  error '"
              << iReport.errorClass << "' key '" << iReport.key << "' of '" << iReport.catalogue << "' with "
              << testing::PrintToString(iReport.parameters);
}

Report Observe(const std::function<long()>& iCall) {
    LeaveOlderError();
    const TraceRecorder traces;
    const int returnsBefore = host::ErrorInspection::ReturnCount();
    const long result = iCall();

    Report report;
    report.result = NameOf(result);
    report.returns = host::ErrorInspection::ReturnCount() - returnsBefore;
    const host::ReturnRecord last = host::ErrorInspection::LastReturn();
    if (report.returns > 0)
        report.source = last.file;
    report.traces = WithoutLineNumbers(traces.Lines(), last);
    const CATError* const error = host::ErrorInspection::LastError();
    if (FAILED(result) && error != nullptr)
        DescribeError(*error, report);
    CATError::CATCleanLastError();
    return report;
}

Report SuccessIn(const std::string& iSource) {
    Report report = PlainSuccess();
    report.returns = 1;
    report.source = iSource;
    return report;
}

Report PlainSuccess() {
    Report report;
    report.result = "S_OK";
    return report;
}

Report FailureIn(const std::string& iSource, const std::string& iMessage) {
    Report report = PlainFailure();
    report.returns = 1;
    report.source = iSource;
    report.traces = {{"OrvKv9Errors", 1, iMessage}, {"OrvKv9Errors", 1, Place("LINE", iSource)}};
    report.errorClass = "CATInternalError";
    report.key = "Error_UnknownError";
    report.catalogue = "OrvKv_ErrorCatalog";
    report.parameters = {iMessage};
    return report;
}

Report PlainFailure() {
    Report report;
    report.result = "E_FAIL";
    return report;
}

} // namespace support
