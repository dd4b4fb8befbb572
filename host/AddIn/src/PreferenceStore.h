#ifndef PreferenceStore_H
#define PreferenceStore_H

#include <optional>
#include <string>

namespace host {

// The place of a panel: left, top, and its extent in two numbers.
struct PanelRectangle {
    int left = 0;
    int top = 0;
    int third = 0;
    int fourth = 0;

    bool operator==(const PanelRectangle&) const = default;
};

// Keeps what the add-in remembers of its user.
class PreferenceStore {
  public:
    PreferenceStore() = default;
    PreferenceStore(const PreferenceStore&) = delete;
    PreferenceStore& operator=(const PreferenceStore&) = delete;
    virtual ~PreferenceStore() = default;

    // None when nothing is stored or it cannot be read.
    virtual std::optional<PanelRectangle> Rectangle() = 0;
    // Whether it is stored now; what was stored before stays otherwise.
    virtual bool Store(const PanelRectangle& iRectangle) = 0;

    // The file, or "memory".
    virtual std::string Place() const = 0;
    // Why the last call failed, in one sentence; empty when it did not.
    virtual std::string Problem() const = 0;

    // The one in use; null once the service is withdrawn. Not owned.
    static PreferenceStore* InUse();
};

} // namespace host

#endif
