#include "hiding/list_request.h"

#include <QCoreApplication>
#include <QHash>

#include "hiding/hiding.h"
#include "platform/exceptions.h"
#include "platform/file_attributes.h"
#include "platform/shown_text.h"

namespace {

using Kind = FileRequest::Kind;

QString text(const char* sentence) {
    return QCoreApplication::translate("ListRequest", sentence);
}

QString nameOf(const QString& path) {
    return shownInLine(ItemRecord::forPath(path, VisibleForm::StringOne).fileTitle());
}

/// The rows of each path, in their order.
QHash<QString, QList<qsizetype>> rowsByPath(const ItemList& list) {
    QHash<QString, QList<qsizetype>> rows;
    qsizetype row = 0;
    list.forEach([&](const ItemRecord& record) { rows[record.filePath()].append(row++); });
    return rows;
}

QStringList pathsOf(const ItemList& list) {
    QStringList paths;
    list.forEach([&](const ItemRecord& record) { paths << record.filePath(); });
    paths.removeDuplicates();
    return paths;
}

}  // namespace

RequestOutcome carryOut(const FileRequest& request, ItemList& list, Hiding& hiding) {
    RequestOutcome outcome;
    if (request.someAreNoFiles) {
        outcome.sentences << text(
            "Some of the given names were left out: they are not files on this computer, or not "
            "valid text.");
    }
    const bool changes = request.kind != Kind::Add;
    const bool visible = request.kind != Kind::Hide;
    const QObject listener;
    QObject::connect(&hiding, &Hiding::switched, &listener,
                     [&](const QString& path, bool askedVisible, Hiding::Obstacle obstacle) {
                         if (obstacle != Hiding::Obstacle::None) {
                             outcome.sentences << Hiding::sentence(path, askedVisible, obstacle);
                         }
                     });
    QHash<QString, QList<qsizetype>> rows = rowsByPath(list);
    try {
        if (changes) {
            hiding.resetShowAll();
        }
    } catch (const LaunchException&) {
        outcome.sentences << text("Nothing was changed: no command could be started.");
        return outcome;
    }
    for (const QString& path : request.kind == Kind::ShowAll ? pathsOf(list) : request.paths) {
        if (!rows.contains(path)) {
            if (request.kind == Kind::Show) {
                outcome.sentences << text("“%1” is not in the list.").arg(nameOf(path));
                continue;
            }
            if (!fileExists(path)) {
                outcome.sentences << text("“%1” does not exist.").arg(nameOf(path));
                continue;
            }
            rows[path].append(list.size());
            list.append(ItemRecord::forPath(path, VisibleForm::NumberOne));
        }
        outcome.current = rows[path].constFirst();
        if (!changes) {
            continue;
        }
        if (Shell::isInterrupted()) {  // what is not done must not be marked as done
            outcome.sentences << text("Not everything was done: the program was asked to end.");
            break;
        }
        ItemRecord switched = list.at(outcome.current);
        hiding.switchItem(switched, visible);
        for (const qsizetype row : rows[path]) {
            ItemRecord record = list.at(row);
            record.setVisible(visible ? VisibleForm::StringOne : VisibleForm::StringZero);
            list.replace(row, record);
        }
    }
    return outcome;
}

QString lockedSentence() {
    return text("The list is locked: unlock it in Velmora’s window first.");
}
