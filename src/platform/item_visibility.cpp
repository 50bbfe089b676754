#include "platform/item_visibility.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include "platform/file_attributes.h"

namespace {

QString translated(const char* text) {
    return QCoreApplication::translate("ItemVisibility", text);
}

QString reason(const QString& path) {
    const QString folder = QFileInfo(path).path();
    if (path.contains(u'\'')) {
        return translated("its path holds an apostrophe, which the command cannot take.");
    }
    if (path.contains(u'\n')) {
        return translated("its name holds a line break, which file managers cannot hide.");
    }
    if (access(QFile::encodeName(folder).constData(), W_OK) != 0) {
        return translated("its folder cannot be written.");
    }
    return translated("the change was not carried out.");
}

}  // namespace

void ItemVisibility::answer(const QString& path, bool askedVisible, bool hidden) {
    if (hidden != askedVisible) {
        emit checked({});
        return;
    }
    QString name = QFileInfo(path).fileName();
    name.replace(u'\n', u' ');
    if (!fileExists(path)) {
        emit checked(translated("“%1” no longer exists.").arg(name));
        return;
    }
    const QString message = askedVisible ? translated("“%1” is still hidden: %2")
                                         : translated("“%1” is still visible: %2");
    emit checked(message.arg(name, reason(path)));
}
