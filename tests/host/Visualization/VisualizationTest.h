#pragma once

// What the tests of images and viewers share.

#include "support/ApplicationTest.h"

#include "host/ViewerInspector.h"

#include <vector>

class CAT2DImagePixelRep;
class CAT2DRep;
class CAT2DViewer;

using Bytes = std::vector<unsigned char>;

// An application with a viewer "Viewer" of 360 by 240 pixels.
class VisualizationTest : public support::ApplicationTest {
  protected:
    VisualizationTest();

    CAT2DViewer& Viewer() { return *_viewer; }
    // What the viewer shows when the representation is its main one.
    host::Picture ShownBy(CAT2DRep* iRep);

    // Of an image at the origin. The caller releases it.
    static CAT2DImagePixelRep* RepOf(const CATPixelImage* iImage);
    // Gives the bytes of the pixels the numbers from 0 on.
    static void FillWithNumbers(CATPixelImage& ioImage);
    static Bytes BytesOf(const host::Picture& iPicture);

    CAT2DViewer* _viewer; // owned by the main window
};
