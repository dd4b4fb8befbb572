#include "host/Preferences.h"

#include "FilePreferences.h"

#include <memory>

namespace host {

namespace {

class MemoryPreferences : public PreferenceStore {
  public:
    std::optional<PanelRectangle> Rectangle() override { return _rectangle; }
    bool Store(const PanelRectangle& iRectangle) override {
        _rectangle = iRectangle;
        return true;
    }
    std::string Place() const override { return "memory"; }
    std::string Problem() const override { return std::string(); }

  private:
    std::optional<PanelRectangle> _rectangle;
};

std::unique_ptr<PreferenceStore>& Current() {
    static std::unique_ptr<PreferenceStore> store = std::make_unique<MemoryPreferences>();
    return store;
}

} // namespace

PreferenceStore* PreferenceStore::InUse() {
    return Current().get();
}

void Preferences::KeepInMemory() {
    Current() = std::make_unique<MemoryPreferences>();
}

void Preferences::KeepInFile(const std::string& iPath) {
    Current() = std::make_unique<FilePreferences>(iPath);
}

void Preferences::Withdraw() {
    Current().reset();
}

std::string Preferences::Place() {
    return Current() == nullptr ? std::string() : Current()->Place();
}

std::string Preferences::Problem() {
    return Current() == nullptr ? std::string() : Current()->Problem();
}

} // namespace host
