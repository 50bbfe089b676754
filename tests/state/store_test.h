#pragma once

#include <sys/stat.h>

#include <memory>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "state/item_list.h"

inline ItemList listOf(int count, const QString& name) {
    ItemList list;
    for (int i = 0; i < count; ++i) {
        list.append(ItemRecord::forPath(QStringLiteral("/some/where/%1/%2").arg(i).arg(name),
                                        VisibleForm::StringOne));
    }
    return list;
}

/// All zero where there is none.
inline struct stat statusOf(const QString& file) {
    struct stat status {};
    ::stat(QFile::encodeName(file).constData(), &status);
    return status;
}

inline mode_t modeOf(const QString& file) {
    return statusOf(file).st_mode & 0777U;
}

inline QByteArray read(const QString& file) {
    QFile input(file);
    return input.open(QIODevice::ReadOnly) ? input.readAll() : QByteArray();
}

inline void write(const QString& file, const QByteArray& bytes) {
    QFile output(file);
    QVERIFY(output.open(QIODevice::WriteOnly) && output.write(bytes) == bytes.size());
}

/// A store in a folder of its own for each test: daily life in store_test.cpp, damage and failures
/// in store_trouble_test.cpp.
class StoreFolder : public QObject {
    Q_OBJECT

private slots:
    void init() {
        folder_ = std::make_unique<QTemporaryDir>();
        QVERIFY(folder_->isValid());
        file_ = folder_->filePath("defaults.json");
    }
    void cleanup() { folder_.reset(); }

protected:
    /// Names in the folder other than the file and its backup.
    QStringList otherFiles() const {
        QStringList names =
            QDir(folder_->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        names.removeAll("defaults.json");
        names.removeAll("defaults.json.bak");
        return names;
    }

    std::unique_ptr<QTemporaryDir> folder_;
    QString file_;
};
