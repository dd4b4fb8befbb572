// The exported headers keep the standard library out of their declarations.

#include "support/TemporaryFolder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

std::vector<std::filesystem::path> ExportedHeaders() {
    std::vector<std::filesystem::path> headers;
    for (const auto& entry : std::filesystem::directory_iterator(KELVANE_LIBRARY_DIR "/PublicInterfaces"))
        headers.push_back(entry.path());
    std::sort(headers.begin(), headers.end());
    return headers;
}

std::string GuardOf(const std::filesystem::path& iHeader) {
    const std::string name = iHeader.stem().string() + "_H";
    return "#ifndef " + name + "\n#define " + name + "\n";
}

TEST(ExportedHeadersTest, AreHeadersAlone) {
    const std::vector<std::filesystem::path> headers = ExportedHeaders();
    EXPECT_GE(headers.size(), 26U) << "the prompt and 25 notifications at least";
    for (const std::filesystem::path& header : headers)
        EXPECT_EQ(header.extension(), ".h") << header;
}

TEST(ExportedHeadersTest, NameNothingOfTheStandardLibrary) {
    for (const std::filesystem::path& header : ExportedHeaders()) {
        const std::string text = support::ReadFile(header);
        EXPECT_EQ(text.find("std::"), std::string::npos) << header;
        EXPECT_EQ(text.find("#include <"), std::string::npos) << header;
        EXPECT_EQ(text.find("#include \"host/"), std::string::npos) << header;
    }
}

TEST(ExportedHeadersTest, HoldOneClassEachUnderTheGuardOfItsName) {
    for (const std::filesystem::path& header : ExportedHeaders()) {
        const std::string text = support::ReadFile(header);
        EXPECT_NE(text.find(GuardOf(header)), std::string::npos) << header;
        const std::string name = header.stem().string();
        EXPECT_TRUE(text.find("class " + name + " ") != std::string::npos ||
                    text.find("struct " + name + " ") != std::string::npos)
            << header;
    }
}

} // namespace
