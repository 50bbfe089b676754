#include "app/launch.h"

#include <cstdio>
#include <optional>

#include <QMessageBox>
#include <QSessionManager>
#include <QTimer>

#include "app/command_line.h"
#include "app/main_window.h"
#include "controls/accessible_buttons.h"
#include "controls/accessible_events.h"
#include "controls/accessible_labels.h"
#include "controls/velmora_style.h"
#include "list/accessible_items.h"
#include "platform/application.h"
#include "platform/bundle.h"
#include "platform/log.h"
#include "platform/session_messages.h"
#include "platform/shell.h"
#include "platform/single_instance.h"
#include "platform/standard_streams.h"
#include "platform/termination_signals.h"
#include "state/user_defaults.h"

namespace {

void prepare() {
    QApplication::setApplicationName(QStringLiteral("velmora"));
    QApplication::setApplicationDisplayName(QStringLiteral("Velmora"));
    QApplication::setApplicationVersion(QStringLiteral(VELMORA_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("com.velmora.Velmora"));
    // The menus are in the window, except where the system has one bar for all windows.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar,
                                   QGuiApplication::platformName() != QLatin1String("cocoa"));
    VelmoraStyle::install();
    Bundle::loadTranslations();
    QApplication::setWindowIcon(Bundle::imageNamed(QStringLiteral("velmora")));
    Shell::setCompanionsFolder(Shell::defaultCompanionsFolder());
    installAccessibleButtons();
    installAccessibleItems();
    installAccessibleLabels();
    installAccessibleEvents();
}

int run(Application& application, const FileRequest& request) {
    constexpr std::chrono::seconds longest{5};
    SingleInstance instance(UserDefaults::fileBeside(QStringLiteral("instance.lock")));
    const bool turn = instance.waitForTurn(longest);
    if (!instance.isFirst()) {
        if (!turn || !instance.activateFirst(request)) {
            Log::line(QStringLiteral("Velmora is running already."));
            QMessageBox::information(
                nullptr, QStringLiteral("Velmora"),
                Bundle::localizedString(
                    QStringLiteral("Velmora is running already, but does not answer."),
                    QStringLiteral("Main")));
        }
        return 0;
    }
    UserDefaults defaults(UserDefaults::standardFile());
    // Ended from outside, the program stores everything but does not run the quit pass. Set up
    // before the launch pass, which such an end cuts short.
    const TerminationSignals terminationSignals;
    Shell::setInterruption(terminationSignals.descriptor());
    QObject::connect(&terminationSignals, &TerminationSignals::terminationRequested, &application,
                     &Application::terminate);
    QObject::connect(
        &application, &QGuiApplication::commitDataRequest, &defaults,
        [&defaults] { defaults.synchronize(); }, Qt::DirectConnection);
    const WhileWaiting session([] {
        SessionMessages::handle();
        return true;
    });
    MainWindow window;
    window.load();
    window.show();
    QObject::connect(&instance, &SingleInstance::activationRequested, &window.window(),
                     [&window](const QByteArray& token) { window.bringForward(token); });
    QObject::connect(&instance, &SingleInstance::filesGiven, &window.window(),
                     [&window](const FileRequest& given) { window.take(given); });
    if (!request.paths.isEmpty() || request.someAreNoFiles) {
        QTimer::singleShot(0, &window.window(), [&window, request] { window.take(request); });
    }
    // The window need not wait for its name on the bus.
    QTimer::singleShot(0, &instance, &SingleInstance::listen);
    const int status = QApplication::exec();
    defaults.synchronize();
    return status;
}

int refuse(const QString& error) {
    constexpr int wrongUse = 2;
    std::fprintf(stderr, "velmora: %s\n", qPrintable(error));
    return wrongUse;
}

// What needs no window; no value when the start is one with a window, or may become one.
std::optional<int> launchWithoutWindow(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("velmora"));
    Bundle::loadTranslations();
    const CommandLine line = readCommandLine(QCoreApplication::arguments());
    if (line.help || line.version) {
        std::puts(line.help ? qPrintable(commandLineHelp()) : "velmora " VELMORA_VERSION);
        return 0;
    }
    if (!line.error.isEmpty()) {
        // It may be one of Qt's own options for programs with windows.
        const bool hasDisplay = qEnvironmentVariableIsSet("DISPLAY") ||
                                qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
                                qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
        return hasDisplay && line.request.kind == FileRequest::Kind::Add
                   ? std::nullopt
                   : std::optional(refuse(line.error));
    }
    if (line.request.kind == FileRequest::Kind::Add) {
        return std::nullopt;
    }
    Shell::setCompanionsFolder(Shell::defaultCompanionsFolder());
    return carryOutWithoutWindow(line.request);
}

}  // namespace

int launch(int argc, char** argv) {
    prepareStandardStreams();
    Log::install();
    if (argc > 1) {
        if (const std::optional<int> status = launchWithoutWindow(argc, argv)) {
            return *status;
        }
    }
    SessionMessages::watch();
    Application application(argc, argv);
    prepare();
    const CommandLine line = readCommandLine(QCoreApplication::arguments());
    if (!line.error.isEmpty()) {
        return refuse(line.error);
    }
    return run(application, line.request);
}
