#ifndef host_Trace_H
#define host_Trace_H

#include <memory>
#include <string>
#include <vector>

namespace host {

// One line of the add-in's trace.
struct TraceLine {
    std::string channel;
    int level = 0;
    std::string text;

    bool operator==(const TraceLine&) const = default;
};

// Receives trace lines.
class TraceSink {
  public:
    TraceSink() = default;
    TraceSink(const TraceSink&) = delete;
    TraceSink& operator=(const TraceSink&) = delete;
    virtual ~TraceSink() = default;
    virtual void Write(const TraceLine& iLine) = 0;
};

// Writes "channel 1: text" lines to standard error.
class StandardErrorSink : public TraceSink {
  public:
    void Write(const TraceLine& iLine) override;
};

// Appends such lines to a file. IsOpen tells whether it could be opened.
class FileSink : public TraceSink {
  public:
    explicit FileSink(const std::string& iPath);
    ~FileSink() override;
    bool IsOpen() const;
    void Write(const TraceLine& iLine) override;

  private:
    struct File;
    std::unique_ptr<File> _file;
};

// Keeps the lines.
class RecorderSink : public TraceSink {
  public:
    void Write(const TraceLine& iLine) override { _lines.push_back(iLine); }
    const std::vector<TraceLine>& Lines() const { return _lines; }
    void Clear() { _lines.clear(); }

  private:
    std::vector<TraceLine> _lines;
};

// Where traces go. Each sink hears the lines of a channel up to that channel's level.
//
// The environment variable KELVANE_TRACE sets the levels: a comma-separated list of channel:level or of a
// level alone for all channels, "OrvKv9Errors:1,2" for instance. Without it every line passes.
class Trace {
  public:
    // Not owned; it must be removed before it is destroyed.
    static void AddSink(TraceSink& ioSink);
    static void RemoveSink(TraceSink& ioSink);
    static int SinkCount();

    // Highest level that passes, for one channel or, with an empty name, for all without a level of their
    // own.
    static void SetLevel(const std::string& iChannel, int iLevel);
    static bool Passes(const std::string& iChannel, int iLevel);
    // Levels from a text in the form of the variable. False, and nothing changed, when it makes no sense.
    static bool SetLevels(const std::string& iText);
    // Levels from KELVANE_TRACE; false when the variable is there but makes no sense.
    static bool SetLevelsFromEnvironment();
    // Back to the start: every line passes, no sinks.
    static void Reset();

    static void Write(const TraceLine& iLine);
};

} // namespace host

#endif
