#include "DrawingBook.h"

#include "pictures/PictureFile.h"

namespace workbench {

namespace {

std::unique_ptr<CATPixelImage> Blank() {
    return std::make_unique<CATPixelImage>(1, 1);
}

} // namespace

const DrawingBook::Page& DrawingBook::Of(const std::string& typeKey) {
    const auto found = _pages.find(typeKey);
    return found != _pages.end() ? found->second : _pages.emplace(typeKey, Read(typeKey)).first->second;
}

DrawingBook::Page DrawingBook::Read(const std::string& typeKey) const {
    const std::filesystem::path file =
        typeKey.empty() || !_finder ? std::filesystem::path() : _finder(typeKey);
    if (file.empty())
        return {Blank(), {}};
    pictures::PictureResult read = pictures::ReadPicture(file);
    return {read.picture ? std::move(read.picture) : Blank(), std::move(read.error)};
}

} // namespace workbench
