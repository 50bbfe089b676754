#include "hiding/hiding.h"

#include <unistd.h>

#include <QFile>
#include <QFileInfo>

#include "hiding/command_lines.h"
#include "platform/file_attributes.h"
#include "platform/item_visibility.h"
#include "platform/shell.h"

namespace {

Hiding::Obstacle obstacleFor(const QString& path, bool askedVisible) {
    using Obstacle = Hiding::Obstacle;
    if (!attributesOfItem(path)) {
        return Obstacle::Gone;
    }
    if (isItemHidden(path) != askedVisible) {
        return Obstacle::None;
    }
    if (path.contains(u'\'')) {
        return Obstacle::Apostrophe;
    }
    if (path.contains(u'\n')) {
        return Obstacle::LineBreak;
    }
    const QByteArray folder = QFile::encodeName(QFileInfo(path).path());
    return access(folder.constData(), W_OK) != 0 ? Obstacle::FolderReadOnly : Obstacle::Unknown;
}

}  // namespace

Hiding::Hiding(QObject* parent)
    : QObject(parent), refresh_(Shell::companionsFolder() + QStringLiteral("/refresh")) {
    connect(&refresh_, &FileManagerRefresh::unreachedChanged, this, &Hiding::unreachedChanged);
}

std::optional<QString> Hiding::showAllSetting() const {
    return Shell::output(command_lines::readShowAll);
}

void Hiding::resetShowAll() const {
    // Only the word counts: a setting that reads 1 or true leaves the file manager alone.
    const QString setting = showAllSetting().value_or(QString());
    if (setting.toLower().contains(QStringLiteral("yes"))) {
        Shell::run(command_lines::writeShowAllNo);
        Shell::run(command_lines::restartFinder);
    }
}

void Hiding::switchItem(ItemRecord& record, bool visible) {
    const QString path = record.filePath();
    if (visible) {
        show(path);
    } else {
        Shell::run(command_lines::hide(path));
        refresh_.itemChanged(path);
    }
    record.setVisible(visible ? VisibleForm::StringOne : VisibleForm::StringZero);
    emit switched(path, visible, obstacleFor(path, visible));
}

void Hiding::showAtLaunch(ItemList& list) {
    for (qsizetype index = list.size() - 1; index >= 0; --index) {
        ItemRecord record = list.at(index);
        show(record.filePath());
        record.setVisible(VisibleForm::StringOne);
        list.replace(index, record);
    }
}

void Hiding::hideAtQuit(ItemList& list) {
    for (qsizetype index = 0; index < list.size(); ++index) {
        ItemRecord record = list.at(index);
        record.setVisible(VisibleForm::StringZero);
        list.replace(index, record);
        Shell::run(command_lines::hideAtQuit(record.filePath()));
        refresh_.itemChanged(record.filePath());
    }
}

void Hiding::show(const QString& path) {
    Shell::run(command_lines::show(path));
    refresh_.itemChanged(path);
}
