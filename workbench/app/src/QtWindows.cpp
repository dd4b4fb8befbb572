#include "Windows.h"

#include "CATDlgWindow.h"
#include "Environment.h"
#include "ExitStatus.h"
#include "PartPicking.h"
#include "desktop/Desktop.h"
#include "host/EventScope.h"
#include "host/Inspector.h"
#include "host/Messages.h"

#include <QtWidgets/QApplication>

#include <cstdlib>
#include <optional>

namespace app {

namespace {

bool HasDisplay() {
    return !(Environment("DISPLAY") + Environment("WAYLAND_DISPLAY") + Environment("QT_QPA_PLATFORM"))
                .empty();
}

/// What the platform plug-ins say of themselves and no user can do anything about.
bool IsChatter(const QString& text) {
    return text.startsWith(QLatin1String("This plugin does not support")) ||
           text.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR"));
}

/// Passes on what Qt has to say. A display that cannot be opened ends the program with a sentence, where Qt
/// would abort it.
class QtMessages {
  public:
    QtMessages() { previous = qInstallMessageHandler(Handle); }
    ~QtMessages() { qInstallMessageHandler(previous); }
    QtMessages(const QtMessages&) = delete;
    QtMessages& operator=(const QtMessages&) = delete;

    /// From now on the display is known to work.
    static void DisplayIsOpen() { isOpening = false; }

  private:
    static void Handle(QtMsgType type, const QMessageLogContext& context, const QString& text) {
        if (isOpening && type == QtFatalMsg)
            std::_Exit(Complain(ExitUnusable, "the display cannot be opened"));
        if (!isOpening && !IsChatter(text))
            previous(type, context, text);
    }

    static inline QtMessageHandler previous = nullptr;
    static inline bool isOpening = true;
};

class QtDialogWindows : public DialogWindows {
  public:
    // A session answers its messages beforehand, so that no window may wait for a person.
    explicit QtDialogWindows(Answering answering) {
        if (answering == Answering::BySession)
            host::Messages::SetFrontEnd(nullptr);
    }

    // DialogWindows
    void ShowPart(const engineering::Part& part, workbench::FeatureCommand& command) override {
        _picking.emplace(part, command);
    }
    void Settle() override {
        host::EventScope::RunIdle();
        QApplication::processEvents();
    }

    std::filesystem::path SavePictures(const std::filesystem::path& folder,
                                       const std::string& name) override {
        for (const CATDlgWindow* window : host::Inspector::Windows()) {
            if (!host::Inspector::IsShownWithParents(*window))
                continue;
            const std::string file = name + "-" + window->GetName().ConvertToChar() + ".png";
            if (!_desktop.SavePicture(*window, (folder / file).string()))
                return folder / file;
        }
        return SavePartTree(folder / (name + "-PartTree.png"));
    }

  private:
    std::filesystem::path SavePartTree(const std::filesystem::path& file) {
        const bool isSaved =
            !_picking || _picking->Window().grab().save(QString::fromStdString(file.string()));
        return isSaved ? std::filesystem::path() : file;
    }

    desktop::Desktop _desktop;
    std::optional<PartPicking> _picking; ///< none before ShowPart
};

class QtWindowSystem : public WindowSystem {
  public:
    QtWindowSystem() { QtMessages::DisplayIsOpen(); }

    // WindowSystem
    std::unique_ptr<DialogWindows> ShowDialogs(Answering answering) override {
        return std::make_unique<QtDialogWindows>(answering);
    }
    void Run() override { QApplication::exec(); }
    void Quit() override { QApplication::quit(); }

  private:
    static inline char program[] = "kelvane";
    char* _arguments[2] = {program, nullptr};
    int _count = 1;
    QtMessages _messages;
    QApplication _application{_count, _arguments};
};

} // namespace

OpenedWindows OpenWindowSystem(Display display) {
    if (!HasDisplay()) {
        if (display == Display::Required)
            return {nullptr, "there is no display: neither DISPLAY nor WAYLAND_DISPLAY is set"};
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    return {std::make_unique<QtWindowSystem>(), {}};
}

} // namespace app
