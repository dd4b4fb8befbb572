#pragma once

#include <string>
#include <vector>

namespace desktop_test {

// Collects what is written to Qt's log as a warning, in place of showing it. One at a time.
class WarningRecorder {
  public:
    WarningRecorder();
    ~WarningRecorder();
    WarningRecorder(const WarningRecorder&) = delete;
    WarningRecorder& operator=(const WarningRecorder&) = delete;

    const std::vector<std::string>& Warnings() const;
};

} // namespace desktop_test
