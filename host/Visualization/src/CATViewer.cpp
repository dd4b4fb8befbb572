#include "CATViewer.h"

#include "host/DialogDump.h"
#include "host/DialogObserver.h"
#include "host/ViewerInspector.h"

#include <algorithm>
#include <cmath>

CATImplementClass(CATViewer, Implementation, CATDlgFrame, CATNull);

namespace {

float Intensity(float iValue) {
    return std::isnan(iValue) ? 0.0F : std::clamp(iValue, 0.0F, 1.0F);
}

} // namespace

CATViewer::CATViewer(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle, int iWidth, int iHeight,
                     CATULong iViewerStyle)
    : CATDlgFrame(iParent, iName, iStyle), _viewerStyle(iViewerStyle), _naturalWidth(std::max(0, iWidth)),
      _naturalHeight(std::max(0, iHeight)) {
    DrawTitle(false); // a window on a scene, whatever the style says
    host::DialogDump::DescribeBy(&host::ViewerInspector::Describe);
}

void CATViewer::SetBackgroundColor(float iRed, float iGreen, float iBlue, int) {
    const float color[] = {Intensity(iRed), Intensity(iGreen), Intensity(iBlue)};
    if (std::equal(std::begin(color), std::end(color), std::begin(_background)))
        return;
    std::copy(std::begin(color), std::end(color), std::begin(_background));
    NoteScene();
}

void CATViewer::Reframe() {
    if (_showsAll)
        return;
    _showsAll = true;
    NoteScene();
}

void CATViewer::Draw() {
    ++_draws;
    NoteScene();
}

void CATViewer::NoteScene() {
    ++_revision;
    NoteChange(host::ChangeContent);
}
