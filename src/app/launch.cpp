#include "app/launch.h"

#include <QMainWindow>
#include <QSessionManager>
#include <QTimer>

#include "app/app_delegate.h"
#include "app/rd_window_controller.h"
#include "app/view_controller.h"
#include "controls/accessible_buttons.h"
#include "controls/velmora_style.h"
#include "list/accessible_items.h"
#include "platform/after_paint.h"
#include "platform/application.h"
#include "platform/bundle.h"
#include "platform/log.h"
#include "platform/shell.h"
#include "platform/single_instance.h"
#include "platform/termination_signals.h"
#include "state/user_defaults.h"
#include "ui_Main.h"

namespace {

constexpr int latestAfterwards = 1000;  // milliseconds

void bringForward(QMainWindow& window, const QByteArray& token) {
    if (!token.isEmpty()) {
        qputenv("XDG_ACTIVATION_TOKEN", token);
    }
    if (window.isMinimized()) {
        window.showNormal();
    }
    window.raise();
    window.activateWindow();
}

void prepare() {
    QApplication::setApplicationName(QStringLiteral("velmora"));
    QApplication::setApplicationDisplayName(QStringLiteral("Velmora"));
    QApplication::setApplicationVersion(QStringLiteral(VELMORA_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("com.velmora.Velmora"));
    // The menus are in the window, except where the system has one bar for all windows.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar,
                                   QGuiApplication::platformName() != QLatin1String("cocoa"));
    // A style that the user has named took the place of ours, which goes around it then.
    if (qobject_cast<VelmoraStyle*>(QApplication::style()) == nullptr) {
        QApplication::setStyle(new VelmoraStyle);
    }
    Bundle::loadTranslations();
    Shell::setCompanionsFolder(Shell::defaultCompanionsFolder());
    installAccessibleButtons();
    installAccessibleItems();
}

int run(Application& application) {
    prepare();
    SingleInstance instance(UserDefaults::fileBeside(QStringLiteral("instance.lock")));
    if (!instance.isFirst()) {
        if (!instance.activateFirst()) {
            Log::line(QStringLiteral("Velmora is running already."));
        }
        return 0;
    }
    UserDefaults defaults(UserDefaults::standardFile());
    QMainWindow window;
    Ui::Main outlets;
    outlets.setupUi(&window);
    AppDelegate delegate(outlets);
    RDWindowController windowController(&window);
    ViewController viewController(&window, delegate);
    QObject::connect(&windowController, &RDWindowController::itemHidden, &viewController,
                     &ViewController::tellFileManagers);
    windowController.windowDidLoad();
    viewController.viewDidLoad();
    window.show();

    // Ended from outside, the program stores everything but does not run the quit pass.
    const TerminationSignals terminationSignals;
    QObject::connect(&terminationSignals, &TerminationSignals::terminationRequested, &application,
                     &Application::terminate);
    QObject::connect(
        &application, &QGuiApplication::commitDataRequest, &defaults,
        [&defaults] { defaults.synchronize(); }, Qt::DirectConnection);
    QObject::connect(&instance, &SingleInstance::activationRequested, &window,
                     [&window](const QByteArray& token) { bringForward(window, token); });
    // What nobody waits for before the window is there. One that starts out of sight has it later.
    QTimer afterwards;
    afterwards.setSingleShot(true);
    QObject::connect(&afterwards, &QTimer::timeout, &instance, [&instance] {
        QApplication::setWindowIcon(Bundle::imageNamed(QStringLiteral("velmora")));
        instance.listen();
    });
    afterwards.start(latestAfterwards);
    AfterPaint firstPaint(&window, [&afterwards] { afterwards.start(0); });
    firstPaint.request();
    const int status = QApplication::exec();
    defaults.synchronize();
    return status;
}

}  // namespace

int launch(int argc, char** argv, const std::function<void()>& watch) {
    Log::install();
    // Before the application object, which would make the desktop's own style otherwise.
    QApplication::setStyle(new VelmoraStyle);
    Application application(argc, argv);
    if (watch) {
        watch();
    }
    return run(application);
}
