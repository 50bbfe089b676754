#pragma once

#include <QList>
#include <QStringList>
#include <QUrl>

/// The places on this computer that addresses name, as absolute paths in their order. Left out, and
/// told by `someUnreadable`, are those on other machines, relative ones, and names that are no
/// valid text or hold a zero character.
struct FileAddresses {
    QStringList paths;
    bool someUnreadable = false;
};
FileAddresses filesAt(const QList<QUrl>& addresses);
