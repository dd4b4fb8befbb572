#ifndef host_ViewerInspector_H
#define host_ViewerInspector_H

#include "CATDlgDefine.h"
#include "CATPixelImage.h"

#include <string>

class CATDialog;
class CATViewer;

namespace host {

// A raster image in a scene. One pixel is one model unit; x grows to the right, y downwards.
struct Picture {
    float left = 0.0F; // place of its upper left corner in the scene
    float top = 0.0F;
    int width = 0; // in pixels; 0 for no picture
    int height = 0;
    CATPixelImage::Format format = CATPixelImage::RGB;
    const unsigned char* pixels = nullptr; // width * format bytes a row, no gap; null for no picture

    explicit operator bool() const { return pixels != nullptr; }
};

// Red, green and blue from 0 to 1.
struct SceneColor {
    float red = 0.0F;
    float green = 0.0F;
    float blue = 0.0F;

    bool operator==(const SceneColor&) const = default;
};

// Reads what a viewer holds and the platform does not tell. Changes nothing.
//
// Observers hear of ChangeContent when a viewer has to be painted anew; Revision tells whether anything has
// changed since the last painting.
class ViewerInspector {
  public:
    static SceneColor Background(const CATViewer& iViewer);
    // The further viewer style.
    static CATULong ViewerStyle(const CATViewer& iViewer);
    // In pixels, at least 0.
    static int NaturalWidth(const CATViewer& iViewer);
    static int NaturalHeight(const CATViewer& iViewer);
    // Whether the whole scene is to be seen, whatever the size of the viewer. False before the first Reframe.
    static bool ShowsAll(const CATViewer& iViewer);
    // What the viewer shows; its pixels are there until the representation goes.
    static Picture PictureOf(const CATViewer& iViewer);
    // How often the viewer was drawn on request.
    static int Draws(const CATViewer& iViewer);
    // A number that is another one after each change of what is to be seen.
    static unsigned Revision(const CATViewer& iViewer);

    // "size=360x360 background=#ffffff picture=360x240", for dumps; empty for what is no viewer.
    static std::string Describe(const CATDialog& iWidget);
};

} // namespace host

#endif
