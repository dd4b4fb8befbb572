#include "PanelTest.h"

#include "CATErrorMacros.h"
#include "CATInternalError.h"
#include "host/CommandInspection.h"
#include "host/Inspector.h"

#include <gtest/gtest.h>
#include <ostream>

namespace {

const char raisedKey[] = "Error_InCommand";
const char raisedCatalogue[] = "CommandCatalog";

std::string LinesOnOneAxis(const CATDialog& iChild, bool iVertical) {
    std::string lines;
    for (const host::Attachment& attachment : host::Inspector::AttachmentsOf(iChild)) {
        if (attachment.vertical != iVertical)
            continue;
        lines += lines.empty() ? "" : "-";
        lines +=
            std::to_string(attachment.tab) + "(" + std::to_string(static_cast<int>(attachment.mode)) + ")";
    }
    return lines;
}

} // namespace

void PrintTo(const Piece& iPiece, std::ostream* ioStream) {
    *ioStream << iPiece.kind << ' ' << iPiece.name << std::hex << " style 0x" << iPiece.style << std::dec
              << " columns " << iPiece.columns << " rows " << iPiece.rows;
}

Pieces PiecesOf(const CATDialog& iPanel) {
    Pieces pieces;
    for (const CATDialog* child : host::Inspector::Children(iPanel))
        pieces.push_back({child->IsA(), child->GetName().ConvertToChar(), host::Inspector::Style(*child),
                          LinesOnOneAxis(*child, true), LinesOnOneAxis(*child, false)});
    return pieces;
}

CATListValCATString KeysOf(std::initializer_list<const char*> iKeys) {
    CATListValCATString keys;
    for (const char* key : iKeys)
        keys.Append(key);
    return keys;
}

Lines LinesOf(const CATDlgCombo& iCombo) {
    Lines lines;
    for (int line = 0; line < iCombo.GetLineCount(); ++line) {
        CATUnicodeString text;
        iCombo.GetLine(text, line);
        lines.emplace_back(text.ConvertToChar());
    }
    return lines;
}

CountingChild::CountingChild(CATDialog& ioFather, std::vector<int>& ioCounts)
    : CATDlgFrame(&ioFather, "CountingChild"), _father(ioFather), _counts(ioCounts) {}

CountingChild::~CountingChild() {
    _counts.push_back(host::CommandInspection::AnalyseCallbacks(_father));
}

CATNotifPropagationMode RaisingCommand::AnalyseNotification(CATCommand*, CATNotification*) {
    CATThrow(new CATInternalError(raisedKey, raisedCatalogue));
}

support::Report CaughtIn(const std::string& iSource, const std::string& iOperation, const std::string& iKey,
                         const std::string& iCatalogue, const std::vector<std::string>& iParameters) {
    support::Report report = support::PlainFailure();
    report.returns = 1;
    report.source = iSource;
    report.traces = {{"OrvKv9SubFrames", 3, iOperation + " -> caught ERROR"},
                     {"OrvKv9SubFrames", 3, "error message: " + iKey}};
    report.errorClass = "CATInternalError";
    report.key = iKey;
    report.catalogue = iCatalogue;
    report.parameters = iParameters;
    return report;
}

support::Report CaughtOfCommandIn(const std::string& iSource, const std::string& iOperation) {
    return CaughtIn(iSource, iOperation, raisedKey, raisedCatalogue);
}
