#include "CAT2DViewer.h"

#include "CAT2DRep.h"

CATImplementClass(CAT2DViewer, Implementation, CATViewer, CATNull);

CAT2DViewer::CAT2DViewer(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle, int iWidth,
                         int iHeight, CATULong iViewerStyle)
    : CATViewer(iParent, iName, iStyle, iWidth, iHeight, iViewerStyle) {}

CAT2DViewer::~CAT2DViewer() {
    Leave();
}

void CAT2DViewer::SetMainRep(CAT2DRep* iRep) {
    Leave();
    _mainRep = iRep;
    if (_mainRep != nullptr)
        _mainRep->_viewers.push_back(this);
}

void CAT2DViewer::Leave() {
    if (_mainRep == nullptr)
        return;
    std::erase(_mainRep->_viewers, this);
    _mainRep = nullptr;
}

void CAT2DViewer::LoseMainRep() {
    Leave();
    NoteScene();
}
