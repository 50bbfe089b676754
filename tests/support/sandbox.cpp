#include "sandbox.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "platform/shell.h"

namespace {

QStringList logLines;

void writeScript(const QString& path, const QString& text) {
    write(path, text.toUtf8());
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

}  // namespace

Sandbox::Sandbox() {
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    qputenv("XDG_CONFIG_HOME", (folder() + QStringLiteral("/config")).toUtf8());
    qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString& message) { logLines << message; });
    QDir(folder()).mkpath(QStringLiteral("files"));
    QDir(folder()).mkpath(QStringLiteral("commands"));
    for (const char* command : {"chflags", "killall", "defaults"}) {
        setCommand(command, {});
    }
    // Takes the items as they come, and shows them once they are whole.
    writeScript(folder() + QStringLiteral("/commands/refresh"),
                QStringLiteral("#!/bin/sh\n{ for path; do echo \"$path\"; done; tr '\\0' '\\n'; } "
                               ">'%1/telling'$$ && mv '%1/telling'$$ '%1/told'\n")
                    .arg(folder()));
    Shell::setCompanionsFolder(folder() + QStringLiteral("/commands"));
    defaults_ = std::make_unique<UserDefaults>(UserDefaults::standardFile());
    Q_ASSERT(UserDefaults::standardFile().startsWith(folder()));
    log();
}

Sandbox::~Sandbox() {
    qInstallMessageHandler(nullptr);
}

void Sandbox::setCommand(const QString& name, const QString& script) const {
    writeScript(
        folder() + QStringLiteral("/commands/") + name,
        QStringLiteral("#!/bin/sh\n{ printf %2; printf '|%s' \"$@\"; echo; } >>'%1/record'\n")
                .arg(folder(), name) +
            script);
}

QString Sandbox::makeFile(const QString& name) const {
    QFile file(folder() + QStringLiteral("/files/") + name);
    return file.open(QIODevice::WriteOnly) ? file.fileName() : QString();
}

QStringList Sandbox::makeFiles(const QStringList& names) const {
    QStringList paths;
    for (const QString& name : names) {
        paths << makeFile(name);
    }
    return paths;
}

QStringList Sandbox::takeLines(const QString& name) const {
    const QString file = folder() + u'/' + name;
    QStringList lines = QString::fromUtf8(contentOf(file)).split(u'\n', Qt::SkipEmptyParts);
    lines.replaceInStrings(folder() + QStringLiteral("/files/"), QString());
    QFile::remove(file);
    return lines;
}

QStringList Sandbox::commands() const {
    return takeLines(QStringLiteral("record"));
}

QStringList Sandbox::told() const {
    [this] { QTRY_VERIFY(QFile::exists(folder() + QStringLiteral("/told"))); }();
    return takeLines(QStringLiteral("told"));
}

QStringList Sandbox::log() {
    return std::exchange(logLines, {});
}

void Sandbox::storeList(const QStringList& paths, VisibleForm form) {
    ItemList list;
    for (const QString& path : paths) {
        list.append(ItemRecord::forPath(path, form));
    }
    defaults_->setItemList(list);
}

QString Sandbox::stored() const {
    const auto list = defaults_->itemList();
    return list ? describe(*list) : QStringLiteral("absent");
}

QString Sandbox::describe(const ItemList& list) {
    QStringList parts;
    list.forEach([&](const ItemRecord& record) {
        const QVariant visible = record.visible();
        const bool text = visible.typeId() == QMetaType::QString;
        parts << record.fileTitle() + u':' +
                     (text ? u'"' + visible.toString() + u'"' : visible.toString());
    });
    return parts.join(u' ');
}

void drop(DragDropView& view, const QStringList& paths) {
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& path : paths) {
        urls << QUrl::fromLocalFile(path);
    }
    data.setUrls(urls);
    const Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(QPoint(20, 60), offered, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&view, &enter);
    QDropEvent event(QPointF(20, 60), offered, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&view, &event);
}
