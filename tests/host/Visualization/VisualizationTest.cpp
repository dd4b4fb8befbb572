#include "VisualizationTest.h"

#include "CAT2DImagePixelRep.h"
#include "CAT2DViewer.h"
#include "CATDlgDocument.h"

VisualizationTest::VisualizationTest()
    : _viewer(new CAT2DViewer(MainWindow(), "Viewer", 0, 360, 240, 0x40000)) {}

host::Picture VisualizationTest::ShownBy(CAT2DRep* iRep) {
    Viewer().SetMainRep(iRep);
    return host::ViewerInspector::PictureOf(Viewer());
}

CAT2DImagePixelRep* VisualizationTest::RepOf(const CATPixelImage* iImage) {
    const float origin[] = {0.0F, 0.0F};
    return new CAT2DImagePixelRep(iImage, origin, 0, 0, 0, 0);
}

void VisualizationTest::FillWithNumbers(CATPixelImage& ioImage) {
    for (std::size_t byte = 0; byte < ioImage.GetSizeInBytes(); ++byte)
        ioImage.GetPixels()[byte] = static_cast<unsigned char>(byte);
}

Bytes VisualizationTest::BytesOf(const host::Picture& iPicture) {
    const int bytes = iPicture.width * iPicture.height * iPicture.format;
    return Bytes(iPicture.pixels, iPicture.pixels + bytes);
}
