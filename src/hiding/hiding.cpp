#include "hiding/hiding.h"

#include <unistd.h>

#include <QFile>
#include <QFileInfo>

#include "platform/file_attributes.h"
#include "platform/item_visibility.h"
#include "platform/pass_window.h"
#include "platform/shown_text.h"

using command_lines::Quoting;

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

QString passWindow() {
    return Shell::companionsFolder() + QStringLiteral("/progress");
}

QString told(const ItemRecord& record, Hiding::Names names) {
    return names == Hiding::Names::Shown ? record.fileTitle() : QString();
}

QString reasonFor(Hiding::Obstacle obstacle) {
    switch (obstacle) {
        case Hiding::Obstacle::Apostrophe:
            return Hiding::tr("its path holds an apostrophe, which the command cannot take.");
        case Hiding::Obstacle::LineBreak:
            return Hiding::tr("its name holds a line break, which file managers cannot hide.");
        case Hiding::Obstacle::TimeUp:
            return Hiding::tr("the command did not come to an end.");
        case Hiding::Obstacle::FolderReadOnly:
            return Hiding::tr("its folder cannot be written.");
        default:
            return Hiding::tr("the change was not carried out.");
    }
}

}  // namespace

QString Hiding::sentence(const QString& path, bool askedVisible, Obstacle obstacle) {
    const QString name = shownInLine(QFileInfo(path).fileName());
    if (obstacle == Obstacle::None) {
        return {};
    }
    if (obstacle == Obstacle::Gone) {
        return tr("“%1” no longer exists.").arg(name);
    }
    const QString message =
        askedVisible ? tr("“%1” is still hidden: %2") : tr("“%1” is still visible: %2");
    return message.arg(name, reasonFor(obstacle));
}

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
    const QString line = visible ? command_lines::show(path) : command_lines::hide(path);
    const Shell::Ending ending = change(path, line, Quoting::SingleQuotes);
    record.setVisible(visible ? VisibleForm::StringOne : VisibleForm::StringZero);
    const Obstacle obstacle = obstacleFor(path, visible);
    const bool tookTooLong = ending == Shell::Ending::TimeUp && obstacle != Obstacle::None;
    emit switched(path, visible, tookTooLong ? Obstacle::TimeUp : obstacle);
}

void Hiding::showAtLaunch(ItemList& list, Names names) {
    PassWindow window(passWindow(), PassWindow::Pass::Launch, list.size());
    for (qsizetype index = list.size() - 1; index >= 0 && !Shell::isInterrupted(); --index) {
        ItemRecord record = list.at(index);
        window.next(list.size() - 1 - index, told(record, names));
        change(record.filePath(), command_lines::show(record.filePath()), Quoting::SingleQuotes);
        record.setVisible(VisibleForm::StringOne);
        list.replace(index, record);
    }
}

bool Hiding::hideAtQuit(ItemList& list, Names names, quintptr above) {
    PassWindow window(passWindow(), PassWindow::Pass::Quit, list.size(), above);
    for (qsizetype index = 0; index < list.size() && !Shell::isInterrupted(); ++index) {
        ItemRecord record = list.at(index);
        if (!window.next(index, told(record, names))) {
            return false;
        }
        record.setVisible(VisibleForm::StringZero);
        list.replace(index, record);
        change(record.filePath(), command_lines::hideAtQuit(record.filePath()), Quoting::None);
    }
    return !window.isStopped();  // it may have been stopped at the last item
}

Shell::Ending Hiding::change(const QString& path, const QString& commandLine, Quoting quoting) {
    const Shell::Ending ending = command_lines::isHarmless(path, quoting)
                                     ? Shell::run(commandLine)
                                     : Shell::read(commandLine);
    refresh_.itemChanged(path);
    return ending;
}
