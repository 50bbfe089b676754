#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "companions/managers/places.h"
#include "fuzz.h"

/// Whatever stands in a settings file: a place that is on is off when it was turned off, or says
/// that it cannot be; where none is on, the file stays as it is.
void tryInput(const QByteArray& input) {
    static const QTemporaryDir home;
    QFile file(home.filePath("file"));
    for (const char* place : {"pcmanfm-qt/default/settings.conf", "pcmanfm/LXDE/pcmanfm.conf",
                              "dolphin/view_properties/global/.directory",
                              "xfce4/xfconf/xfce-perchannel-xml/thunar.xml"}) {
        QDir().mkpath(QFileInfo(home.filePath(place)).path());
        file.link(home.filePath(place));
    }
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"}) {
        qputenv(variable, home.path().toUtf8());
    }
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    qputenv("GSETTINGS_BACKEND", "memory");
    demand(file.open(QIODevice::WriteOnly) && file.write(input) == input.size());
    file.close();
    bool anyOn = false;
    for (const auto& place : allPlaces()) {
        anyOn |= place->state() == Place::State::On;
        try {
            place->turnOff();
            demand(place->state() != Place::State::On);
        } catch (const std::exception&) {
        }
    }
    demand(file.open(QIODevice::ReadOnly) && (anyOn || file.readAll() == input));
}
