#include "Options.h"

#include "ExitStatus.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <map>

namespace app {

namespace {

using workbench::FeatureCommand;

const std::map<std::string, FeatureCommand::Mode> modes{{"parameters", FeatureCommand::Mode::Parameters},
                                                        {"sets", FeatureCommand::Mode::Sets}};
const std::map<std::string, std::string> languages{
    {"en", ""}, {"de", "German"}, {"fr", "French"}, {"ja", "Japanese"}};

/// Names of a table; any other is refused with the known ones.
template<class Value>
CLI::Validator OneOf(const std::map<std::string, Value>& table) {
    const auto check = [&table](const std::string& name) {
        if (table.contains(name))
            return std::string();
        std::string known;
        for (const auto& each : table)
            known += (known.empty() ? "" : ", ") + each.first;
        return "unknown value '" + name + "', there are " + known;
    };
    return {check, ""};
}

class CommandLine {
  public:
    CommandLine() {
        _app.set_version_flag("--version", "kelvane " KELVANE_VERSION);
        _app.require_subcommand(0, 1);
        AddDialogOptions(_app);
        AddOpen();
        AddReplay();
        AddDump();
        AddCheck();
        AddThread();
        AddFit();
        _app.footer("Without a command the feature dialog is opened.\n"
                    "Environment: KELVANE_DATA (data folder), KELVANE_TRACE (levels, \"channel:level,...\"), "
                    "KELVANE_FAIL_CALL (n or name:n).\n"
                    "Exit status: 0 done; 1 an expectation failed or a thing asked for does not exist; "
                    "2 unusable arguments or input.");
    }

    Arguments Read(int count, const char* const* values) {
        try {
            _app.parse(count, values);
        } catch (const CLI::Success& help) {
            return {std::nullopt, _app.exit(help)};
        } catch (const CLI::ParseError& error) {
            return {std::nullopt, Complain(ExitUnusable, error.what())};
        }
        _options.mode = modes.at(_mode);
        _options.language = languages.at(_language);
        return {_options, ExitDone};
    }

  private:
    void AddDialogOptions(CLI::App& command) {
        command.add_option("--mode", _mode, "What the dialog is for: parameters or sets")
            ->check(OneOf(modes))
            ->type_name("MODE");
        AddCatalogueOption(command);
        command
            .add_option("--preferences", _options.preferences,
                        "Remember the dialog's place here; sessions and dumps remember nothing without it")
            ->type_name("FILE");
        command.add_option("--lang", _language, "Language of the dialog: en, de, fr or ja")
            ->check(OneOf(languages))
            ->type_name("LANG");
    }

    void AddCatalogueOption(CLI::App& command) {
        command
            .add_option("--catalogue", _options.catalogue,
                        "Feature catalogue to use instead of the shipped one")
            ->type_name("DIR");
    }

    CLI::App& AddCommand(const char* name, const char* purpose, Options::Command command) {
        CLI::App* const added = _app.add_subcommand(name, purpose);
        added->callback([this, command] { _options.command = command; });
        return *added;
    }

    void AddOpen() {
        AddDialogOptions(AddCommand("open", "Open the feature dialog", Options::Command::Open));
    }

    void AddReplay() {
        CLI::App& replay =
            AddCommand("replay", "Replay a session and check what it expects", Options::Command::Replay);
        replay.add_option("FILE", _options.file, "Session, JSON Lines")->required();
        replay.add_flag("--desktop", _options.desktop, "Replay in real windows");
        replay
            .add_option("--pictures", _options.pictures,
                        "Leave a picture of each step here; implies --desktop")
            ->type_name("DIR");
        replay.add_option("--transcript", _options.transcript, "Write each step and what came of it")
            ->type_name("FILE");
        AddDialogOptions(replay);
    }

    void AddDump() {
        CLI::App& dump = AddCommand("dump", "Print the dialog tree", Options::Command::Dump);
        dump.add_option("FILE", _options.file, "Session to replay first");
        dump.add_flag("--json", _options.json, "Print it as JSON");
        AddDialogOptions(dump);
    }

    void AddCheck() {
        CLI::App& check =
            AddCommand("check", "Print the problems of a feature catalogue", Options::Command::Check);
        check.add_option("DIR", _options.file, "Folder of the catalogue")->required();
    }

    void AddThread() {
        CLI::App& thread =
            AddCommand("thread", "Print the sizes of a thread, such as M10x1.25", Options::Command::Thread);
        thread.add_option("DESIGNATION", _options.designation, "M10, 'M 10x1,25', '1/4-20 UNC', G1/2 ...")
            ->required();
        thread.add_flag("--json", _options.json, "Print them as JSON");
        AddCatalogueOption(thread);
    }

    void AddFit() {
        CLI::App& fit = AddCommand(
            "fit", "Print the limits of an ISO 286 class, such as 25 H7, or of a fit, such as 25 H7/g6",
            Options::Command::Fit);
        fit.add_option("NOMINAL", _options.nominal,
                       "Nominal size in mm, above 0 up to 500: 25, 25.4, 25,4mm ...")
            ->required();
        fit.add_option(
               "CLASS", _options.designation,
               "H7, js6: upper and lower deviation in mm; H7/g6: hole, shaft, clearance or interference")
            ->required();
        fit.add_flag("--json", _options.json, "Print them as JSON");
        AddCatalogueOption(fit);
    }

    CLI::App _app{"kelvane - the feature dialog with its catalogue", "kelvane"};
    Options _options;
    std::string _mode = "parameters";
    std::string _language = "en";
};

} // namespace

Arguments ReadArguments(int count, const char* const* values) {
    return CommandLine().Read(count, values);
}

} // namespace app
