#include "controls/velmora_style.h"

#include "platform/bundle.h"

QIcon VelmoraStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                 const QWidget* widget) const {
    // Reading a picture from a file loads every image format that is installed.
    if (icon == SP_ToolBarHorizontalExtensionButton) {
        return Bundle::imageNamed(QStringLiteral("more"));
    }
    return QProxyStyle::standardIcon(icon, option, widget);
}
