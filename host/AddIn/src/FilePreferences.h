#ifndef FilePreferences_H
#define FilePreferences_H

#include "PreferenceStore.h"

#include <filesystem>

namespace host {

// Keeps the preferences in a file. It is read whenever something is asked for, so that what another process
// has stored counts, and written when something changes. A file that makes no sense is left alone.
class FilePreferences : public PreferenceStore {
  public:
    explicit FilePreferences(const std::string& iPath);

    std::optional<PanelRectangle> Rectangle() override;
    bool Store(const PanelRectangle& iRectangle) override;
    std::string Place() const override;
    std::string Problem() const override { return _problem; }

  private:
    // False, with a problem, when there is something that cannot be used.
    bool Read(std::optional<PanelRectangle>& oRectangle);
    bool Fail(const std::string& iWhat);

    std::filesystem::path _path; // as it was asked for; it may be a symbolic link
    std::string _problem;
};

} // namespace host

#endif
