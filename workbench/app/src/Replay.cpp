#include "Commands.h"

#include "ExitStatus.h"
#include "Scene.h"
#include "Windows.h"
#include "host/EventScope.h"
#include "session/Player.h"
#include "session/Transcript.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace app {

namespace {

namespace fs = std::filesystem;

/// Shows each step in the windows, and leaves a picture of each thing done where there is a folder for them.
class Showing : public session::StepListener {
  public:
    Showing(DialogWindows& windows, fs::path folder) : _windows(windows), _folder(std::move(folder)) {}

    void ShowStart() { Show("start"); }
    /// The first picture that could not be written; empty when there was none.
    const fs::path& Unwritten() const { return _unwritten; }

    // session::StepListener
    void AfterStep(const session::Step& step, const session::Happenings&, const session::Failure*) override {
        if (step.IsExpectation())
            return;
        ++_number;
        Show(step.Word());
    }

  private:
    void Show(const std::string& word) {
        _windows.Settle();
        if (_folder.empty() || !_unwritten.empty())
            return;
        char number[16];
        std::snprintf(number, sizeof number, "%03d", _number);
        _unwritten = _windows.SavePictures(_folder, std::string(number) + "-" + word);
    }

    DialogWindows& _windows;
    fs::path _folder; ///< empty for no pictures
    fs::path _unwritten;
    int _number = 0; ///< of the steps done so far
};

/// One replay: what it writes to, and the session itself.
class Replaying {
  public:
    Replaying(const Options& options, const WorkData& data) : _options(options), _data(data) {}

    int Run() {
        if (_options.desktop || !_options.pictures.empty()) {
            _windows = OpenWindowSystem(Display::Optional);
            if (!_windows.system)
                return Complain(ExitUnusable, _windows.reason.c_str());
        }
        Scene scene(_data, _options.mode);
        const auto watching =
            _options.transcript.empty() ? session::Journal::WithoutChanges : session::Journal::WithChanges;
        session::Player player(scene.Recorder(), watching);
        scene.AddStepsTo(player);
        const session::Reading reading = session::ReadScript(_options.file, player.Words());
        if (!reading.script)
            return Complain(ExitUnusable, reading.problem.c_str());
        const std::string obstacle = PrepareOutput();
        if (!obstacle.empty())
            return Complain(ExitUnusable, obstacle.c_str());
        return Play(scene, player, *reading.script);
    }

  private:
    /// Why something cannot be written; empty when everything can.
    std::string PrepareOutput() {
        std::error_code error;
        if (!_options.pictures.empty()) {
            fs::create_directories(_options.pictures, error);
            if (!fs::is_directory(_options.pictures, error))
                return "the folder '" + _options.pictures + "' cannot be made";
        }
        if (_options.transcript.empty())
            return {};
        _transcript.open(_options.transcript, std::ios::binary);
        return _transcript ? std::string() : "the transcript '" + _options.transcript + "' cannot be written";
    }

    int Play(Scene& scene, session::Player& player, const session::Script& script) {
        const std::unique_ptr<DialogWindows> dialogs =
            _windows.system ? _windows.system->ShowDialogs(Answering::BySession) : nullptr;
        if (!scene.Start())
            return Complain(ExitFailed, "the feature dialog cannot be made: memory is short");
        if (dialogs)
            dialogs->ShowPart(_data.part, scene.Command());
        host::EventScope::RunIdle();
        session::Transcript transcript(_transcript);
        if (_transcript.is_open()) {
            transcript.Start(fs::path(script.file).filename().string(), player.SinceStep());
            player.AddListener(transcript);
        }
        std::optional<Showing> showing;
        if (dialogs) {
            player.AddListener(showing.emplace(*dialogs, _options.pictures));
            showing->ShowStart();
        }
        const session::PlayResult result = player.Play(script);
        transcript.Finish(result);
        if (showing && !showing->Unwritten().empty())
            return Complain(
                ExitUnusable,
                ("the picture '" + showing->Unwritten().string() + "' cannot be written").c_str());
        if (_transcript.is_open() && !_transcript.flush())
            return Complain(ExitUnusable,
                            ("the transcript '" + _options.transcript + "' cannot be written").c_str());
        return Tell(result, script.file);
    }

    static int Tell(const session::PlayResult& result, const std::string& file) {
        for (const session::Failure& failure : result.failures)
            std::cerr << ToText(failure, file) << '\n';
        std::cout << file << ": " << Summary(result) << '\n';
        return result.failures.empty() ? ExitDone : ExitFailed;
    }

    const Options& _options;
    const WorkData& _data;
    OpenedWindows _windows; ///< no system when the replay is headless
    std::ofstream _transcript;
};

} // namespace

int Replay(const Options& options, const WorkData& data) {
    return Replaying(options, data).Run();
}

} // namespace app
