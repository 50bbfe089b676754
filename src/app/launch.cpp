#include "app/launch.h"

#include <QSessionManager>
#include <QTimer>

#include "app/main_window.h"
#include "controls/accessible_buttons.h"
#include "controls/velmora_style.h"
#include "list/accessible_items.h"
#include "platform/application.h"
#include "platform/bundle.h"
#include "platform/log.h"
#include "platform/shell.h"
#include "platform/single_instance.h"
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
    // A style that the user has named took the place of ours, which goes around it then.
    if (qobject_cast<VelmoraStyle*>(QApplication::style()) == nullptr) {
        QApplication::setStyle(new VelmoraStyle);
    }
    Bundle::loadTranslations();
    QApplication::setWindowIcon(Bundle::imageNamed(QStringLiteral("velmora")));
    Shell::setCompanionsFolder(Shell::defaultCompanionsFolder());
    installAccessibleButtons();
    installAccessibleItems();
}

int run(Application& application) {
    SingleInstance instance(UserDefaults::fileBeside(QStringLiteral("instance.lock")));
    if (!instance.isFirst()) {
        if (!instance.activateFirst()) {
            Log::line(QStringLiteral("Velmora is running already."));
        }
        return 0;
    }
    UserDefaults defaults(UserDefaults::standardFile());
    MainWindow window;
    window.load();
    window.show();

    // Ended from outside, the program stores everything but does not run the quit pass.
    const TerminationSignals terminationSignals;
    QObject::connect(&terminationSignals, &TerminationSignals::terminationRequested, &application,
                     &Application::terminate);
    QObject::connect(
        &application, &QGuiApplication::commitDataRequest, &defaults,
        [&defaults] { defaults.synchronize(); }, Qt::DirectConnection);
    QObject::connect(&instance, &SingleInstance::activationRequested, &window.window(),
                     [&window](const QByteArray& token) { window.bringForward(token); });
    // The window need not wait for its name on the bus.
    QTimer::singleShot(0, &instance, &SingleInstance::listen);
    const int status = QApplication::exec();
    defaults.synchronize();
    return status;
}

}  // namespace

int launch(int argc, char** argv) {
    Log::install();
    // Before the application object, which would make the desktop's own style otherwise.
    QApplication::setStyle(new VelmoraStyle);
    Application application(argc, argv);
    prepare();
    return run(application);
}
