#include "HostCatalogue.h"

#include "ParameterFacts.h"
#include "host/MessageCatalogs.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace {

constexpr const char* catalogue = "OrvKvParametersDescription";

void WriteDescriptions(const std::filesystem::path& iFile) {
    std::ofstream file(iFile);
    for (int number = 0; number < describedParameters; ++number) {
        const ParameterFacts facts = FactsOf(number);
        file << facts.name << " = \"" << facts.description << "\";\n";
    }
}

} // namespace

void UseDescriptions() {
    const std::string first = FactsOf(0).name;
    if (host::MessageCatalogs::Text(catalogue, first).has_value())
        return;
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("kelvane-benchmarks-" + std::to_string(getpid()));
    std::filesystem::create_directory(folder);
    WriteDescriptions(folder / (std::string(catalogue) + ".CATNls"));
    host::MessageCatalogs::AddFolder(folder.string());
    host::MessageCatalogs::Text(catalogue, first); // reads the file
    std::filesystem::remove_all(folder);
}
