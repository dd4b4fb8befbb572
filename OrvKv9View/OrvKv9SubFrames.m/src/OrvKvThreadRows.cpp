#include "OrvKvThreadRows.h"

#include "CATDlgContainer.h"
#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "OrvKvLayout.h"
#include "OrvKvSpacer.h"
#include "OrvKvValueControl.h"

// A frame around one control, without border and title.
static constexpr CATDlgStyle ValueFrame = 0xC0000;

static constexpr int TopRow = 0;

// Lines between the columns, from left to right.
enum ColumnLine { LabelStart = 0, GapStart = 1, ControlStart = 2, TopGapEnd = 3, ControlEnd = 4 };

void OrvKvThreadRows::AddTopGap(const char* iName, int iHeight, int iWidth) {
    auto* const gap = OrvKvNewSpacer(_frame, iName, iHeight, iWidth);
    OrvKvLayout(_frame).Columns(gap, OrvKvUntil::Stretching(TopGapEnd)).Rows(gap, OrvKvFrom(TopRow));
}

void OrvKvThreadRows::AddColumnGap(const char* iName, int iHeight, int iWidth) {
    auto* const gap = OrvKvNewSpacer(_frame, iName, iHeight, iWidth);
    OrvKvLayout(_frame).Columns(gap, OrvKvFrom(GapStart)).Rows(gap, OrvKvFrom(_row + 1));
}

void OrvKvThreadRows::AddGap(const char* iName) {
    OrvKvLayout(_frame).Columns(OrvKvNewSpacer(_frame, iName), OrvKvFrom(LabelStart));
}

void OrvKvThreadRows::Add(CATDlgLabel* iLabel, CATDialog* iControl) {
    const OrvKvFrom row(++_row);
    OrvKvLayout(_frame)
        .Columns(iLabel, OrvKvFrom(LabelStart))
        .Rows(iLabel, row)
        .Columns(iControl, OrvKvFrom(ControlStart).StretchTo(ControlEnd))
        .Rows(iControl, row);
}

void OrvKvThreadRows::AddValue(const char* iFrameName, const char* iLabelName, const char* iSpinnerName,
                               CATDlgFrame*& oFrame, CATDlgLabel*& oLabel, CATDialog*& oControl) {
    oFrame = new CATDlgFrame(_frame, iFrameName, ValueFrame);
    oLabel = new CATDlgLabel(_frame, iLabelName);
    oControl = OrvKvNewSpinner(oFrame, iSpinnerName);
    Add(oLabel, oFrame);
}
