#pragma once

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>

/// Answers for many paths what fileExists() answers for one. The names in a folder that is asked
/// about often are read once, which is quicker than a system call for each path; no more names are
/// read altogether than the calls that they can save are worth.
class FileFinder final {
public:
    /// `paths`: about how many will be asked for.
    explicit FileFinder(qsizetype paths);

    bool exists(const QString& path);

private:
    struct Folder {
        int questions = 0;
        QSet<QByteArray> names;  // that surely exist, once it was read
    };

    QSet<QByteArray> readNames(const QByteArray& folder);

    QHash<QByteArray, Folder> folders_;
    qsizetype mostNames_;
};
