#include "platform/bundle.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

void Bundle::loadTranslations() {
    const auto install = [](const QLocale& locale, const QString& name, const QString& folder) {
        auto* translator = new QTranslator(QCoreApplication::instance());
        if (translator->load(locale, name, QStringLiteral("_"), folder)) {
            QCoreApplication::installTranslator(translator);
        } else {
            delete translator;
        }
    };
    const QString own = QStringLiteral(":/translations");
    const QLocale english(QLocale::English);
    const QLocale user = QLocale::system();
    install(english, QStringLiteral("velmora"), own);
    if (user.language() != QLocale::English && user.language() != QLocale::C) {
        install(user, QStringLiteral("velmora"), own);
        install(user, QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    }
}

QString Bundle::localizedString(const QString& key, const QString& table) {
    return QCoreApplication::translate(table.toUtf8().constData(), key.toUtf8().constData());
}

QIcon Bundle::imageNamed(const QString& name) {
    static QHash<QString, QIcon> icons;
    const auto known = icons.constFind(name);
    if (known != icons.cend()) {
        return *known;
    }
    const QString path = QStringLiteral(":/images/%1.svg").arg(name);
    return *icons.insert(name, QFile::exists(path) ? QIcon(path) : QIcon());
}

QString Bundle::pathForResource(const QString& name, const QString& type) {
    const QString path = QStringLiteral(":/documents/%1.%2").arg(name, type);
    return QFile::exists(path) ? path : QString();
}
