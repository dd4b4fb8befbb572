// The drawings of the shipped feature types: their letters, their look and the pictures made from them.

#include "DrawingFile.h"
#include "engineering/CatalogueLoader.h"
#include "support/TemporaryFolder.h"

#include <QtCore/QXmlStreamReader>
#include <QtGui/QImage>

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace {

namespace fs = std::filesystem;
using engineering::FeatureType;
using engineering::Magnitude;
using engineering::Parameter;
using Names = std::vector<std::string>;

const fs::path catalogueFolder = KELVANE_CATALOGUE_DIR;

/// What a drawing says: the content of its elements of one kind, in the order of the file.
Names ContentOf(const std::string& key, const char* element) {
    const std::string file = support::ReadFile(catalogueFolder / "drawings" / (key + ".svg"));
    QXmlStreamReader reader(QByteArray::fromStdString(file));
    Names contents;
    while (!reader.atEnd())
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == QLatin1String(element))
            contents.push_back(reader.readElementText().toStdString());
    EXPECT_FALSE(reader.hasError()) << key << ": " << reader.errorString().toStdString();
    return contents;
}

/// The part of a drawing that all drawings share.
std::string LookOf(const std::string& key) {
    const std::string file = support::ReadFile(catalogueFolder / "drawings" / (key + ".svg"));
    const std::size_t from = file.find("<style>");
    const std::size_t to = file.find("</defs>");
    EXPECT_LT(from, to) << key;
    return file.substr(0, file.find(" xmlns")) + file.substr(from, to - from);
}

class DrawingTest : public testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(_loaded.catalogue); }

    Names Types() const {
        Names types;
        for (const std::string& group : _loaded.catalogue->Groups())
            for (const std::string& type : *_loaded.catalogue->TypesOf(group))
                types.push_back(type);
        return types;
    }

    const FeatureType& Type(const std::string& key) const { return *_loaded.catalogue->Type(key); }

  private:
    engineering::LoadResult _loaded = engineering::CatalogueLoader::Load(catalogueFolder);
};

TEST_F(DrawingTest, EveryTypeHasADrawingAndEveryDrawingAType) {
    std::set<std::string> drawn;
    for (const fs::directory_entry& entry : fs::directory_iterator(catalogueFolder / "drawings"))
        drawn.insert(entry.path().filename().string());
    std::set<std::string> wanted;
    for (const std::string& type : Types())
        wanted.insert(type + ".svg");
    EXPECT_EQ(drawn, wanted);
}

TEST_F(DrawingTest, TheLettersAreTheLengthsAndAnglesOfTheTypeEachOnce) {
    for (const std::string& type : Types()) {
        Names wanted;
        for (const Parameter& parameter : Type(type).Parameters())
            if (parameter.magnitude == Magnitude::Length || parameter.magnitude == Magnitude::Angle)
                wanted.push_back(parameter.name);
        Names letters = ContentOf(type, "text");
        std::sort(wanted.begin(), wanted.end());
        std::sort(letters.begin(), letters.end());
        EXPECT_EQ(letters, wanted) << type;
    }
}

TEST_F(DrawingTest, TheTitleEndsWithTheStandardOfTheType) {
    for (const std::string& type : Types()) {
        const Names titles = ContentOf(type, "title");
        ASSERT_EQ(titles.size(), 1U) << type;
        EXPECT_TRUE(titles.front().ends_with(", " + Type(type).Description().standard)) << titles.front();
    }
}

TEST_F(DrawingTest, AllDrawingsShareLineWidthsArrowsHatchingAndLetters) {
    const std::string look = LookOf(Types().front());
    EXPECT_NE(look.find("id=\"hatch\""), std::string::npos);
    for (const std::string& type : Types())
        EXPECT_EQ(LookOf(type), look) << type;
}

TEST_F(DrawingTest, EveryTypeHasAPictureOfTwiceTheViewersSize) {
    for (const std::string& type : Types()) {
        const QImage picture(QString::fromStdString(workbench::DrawingFile(catalogueFolder, type).string()));
        EXPECT_EQ(picture.size(), QSize(720, 720)) << type;
    }
}

TEST_F(DrawingTest, TheMarginsOfAPictureAreWhiteAndNotTheRest) {
    const QRect inside(16, 16, 688, 688);
    for (const std::string& type : Types()) {
        const QImage picture(QString::fromStdString(workbench::DrawingFile(catalogueFolder, type).string()));
        int inked = 0;
        int outside = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                if (picture.pixel(x, y) != 0xffffffffU)
                    ++(inside.contains(x, y) ? inked : outside);
        EXPECT_EQ(outside, 0) << type;
        EXPECT_GT(inked, 5000) << type;
    }
}

} // namespace
