#include "state/preference_keys.h"

#include <QCoreApplication>
#include <QVariant>

#include "state/readings.h"
#include "state/user_defaults.h"

QString storedPassword() {
    const QVariant stored = UserDefaults::standardUserDefaults().objectForKey(passwordKey);
    return stored.typeId() == QMetaType::QString ? stored.toString() : QString();
}

bool isProtected() {
    return !storedPassword().isEmpty() &&
           integerReading(UserDefaults::standardUserDefaults().objectForKey(requirePasswordKey)) ==
               1;
}

QString preferenceName(Preference preference) {
    switch (preference) {
        case Preference::MakeVisibleAtLaunch:
            return QStringLiteral("Makevisibleallthelisteditemsatlaunch");
        case Preference::MakeInvisibleOnQuit:
            return QStringLiteral("Makeinvisibleallthelisteditemsonquit");
        case Preference::OpenOnDoubleClick:
            return QStringLiteral("Makevisibleandopenhiddenitemsondoubleclick");
        case Preference::AlternatingRowColors:
            return QStringLiteral("UseAlternatingColorsFortheItemsListRows");
    }
    Q_UNREACHABLE();
}

QString resolvedPreferenceKey(Preference preference, const QString& table) {
    return QCoreApplication::translate(table.toUtf8().constData(),
                                       preferenceName(preference).toUtf8().constData());
}

bool preference(Preference preference, const QString& table) {
    return truthReading(UserDefaults::standardUserDefaults().objectForKey(
        resolvedPreferenceKey(preference, table)));
}

void setPreference(Preference preference, bool on) {
    UserDefaults::standardUserDefaults().setObject(on, resolvedPreferenceKey(preference));
}
