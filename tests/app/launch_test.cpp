#include "app/launch.h"

#include <QProxyStyle>
#include <QTemporaryDir>
#include <QTimer>

#include "platform/application.h"

namespace {

QString baseStyle;

void look() {
    QTimer::singleShot(0, QCoreApplication::instance(), [] {
        baseStyle = static_cast<QProxyStyle*>(QApplication::style())->baseStyle()->name();
        Application::terminate();
    });
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(look)

/// Under the program's own style lies the one that the display's theme chooses.
int main(int argc, char** argv) {
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    launch(argc, argv);
    qInfo("The base style is %s.", qPrintable(baseStyle));
    return baseStyle == QLatin1String("fusion") ? 0 : 1;
}
