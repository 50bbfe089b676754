#pragma once

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>

/// Answers for many paths what fileExists() answers for one. Of a folder that is asked about often
/// the names are read once, which is quicker than a look at each path; the reading altogether is
/// never much more than the looks that it can save.
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
