#ifndef OrvKvSpacer_H
#define OrvKvSpacer_H

class CATDialog;
class CATDlgContainer;

// An empty widget that keeps others apart, in pixels; it belongs to the parent. Null where memory is short.
CATDlgContainer* OrvKvNewSpacer(CATDialog* iParent, const char* iName, int iHeight = 10, int iWidth = 10);

#endif
