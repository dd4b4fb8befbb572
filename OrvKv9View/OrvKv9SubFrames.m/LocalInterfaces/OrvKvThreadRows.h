#ifndef OrvKvThreadRows_H
#define OrvKvThreadRows_H

class CATDialog;
class CATDlgFrame;
class CATDlgLabel;

// Makes and lays out what stands in the frame of the thread panel: rows of a label and a control beside it,
// and gaps. A widget that could not be made (null) is left out.
//
//     OrvKvThreadRows rows(_pStandardThreadFrm);
//     rows.Add(label, combo);         // the first row below the top
//     rows.AddValue(...);             // the second
class OrvKvThreadRows {
  public:
    // The frame is there and outlives this object.
    explicit OrvKvThreadRows(CATDlgFrame* iFrame) : _frame(iFrame) {}

    // A gap above all rows, and one between the label and the control of the next row.
    void AddTopGap(const char* iName, int iHeight, int iWidth);
    void AddColumnGap(const char* iName, int iHeight, int iWidth);
    // A gap in the column of the labels.
    void AddGap(const char* iName);
    // The next row.
    void Add(CATDlgLabel* iLabel, CATDialog* iControl);
    // The next row, with a control that stands in a frame of its own: a spinner at first.
    void AddValue(const char* iFrameName, const char* iLabelName, const char* iSpinnerName,
                  CATDlgFrame*& oFrame, CATDlgLabel*& oLabel, CATDialog*& oControl);

  private:
    CATDlgFrame* _frame;
    int _row = 0; // the last one that was added
};

#endif
