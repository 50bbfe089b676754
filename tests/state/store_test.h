#pragma once

#include <sys/stat.h>

#include <functional>
#include <memory>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "state/item_list.h"
#include "state/preference_keys.h"
#include "state/store_file.h"

inline ItemList listOf(int count, const QString& name) {
    ItemList list;
    for (int i = 0; i < count; ++i) {
        list.append(ItemRecord::forPath(QStringLiteral("/some/where/%1/%2").arg(i).arg(name),
                                        VisibleForm::StringOne));
    }
    return list;
}

inline bool isOneGeneration(const StoreReading& reading) {
    if (reading.state != StoreReading::State::Good)
        return false;
    const QString name = reading.contents.value("generation").toString();
    const auto list = reading.contents.value(itemListKey).value<ItemList>();
    return list == listOf(3000, name);
}

inline ino_t inodeOf(const QString& file) {
    struct stat status {};
    return ::stat(QFile::encodeName(file).constData(), &status) == 0 ? status.st_ino : 0;
}

inline mode_t modeOf(const QString& file) {
    struct stat status {};
    return ::stat(QFile::encodeName(file).constData(), &status) == 0 ? status.st_mode & 0777U : 0;
}

inline QByteArray read(const QString& file) {
    QFile input(file);
    return input.open(QIODevice::ReadOnly) ? input.readAll() : QByteArray();
}

inline void write(const QString& file, const QByteArray& bytes) {
    QFile output(file);
    QVERIFY(output.open(QIODevice::WriteOnly) && output.write(bytes) == bytes.size());
}

/// The store in one file: daily life in store_test.cpp, damage and failures in
/// store_trouble_test.cpp.
class StoreTest final : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { folder_.reset(); }

    void everyTypeStaysItself();
    void readsSeeWritesAtOnce();
    void isForItsOwnerAlone();
    void changesShareOneSaveThatNobodyWaitsFor();
    void unchangedContentIsNotWritten();
    void oddContentIsKept();
    void listOfAnotherTypeIsSetAsideBeforeItIsReplaced();
    void damagedFileIsSetAside_data();
    void damagedFileIsSetAside();
    void unreadableStoreIsLeftAlone_data();
    void unreadableStoreIsLeftAlone();
    void missingFileGivesWayToTheCopy();
    void damagedFileThatCannotBeSetAsideIsNotReplaced();
    void failedSaveLeavesTheOldFile_data();
    void failedSaveLeavesTheOldFile();
    void worksInMemoryWithoutAFolder();
    void linkStaysALink();
    void deadTemporariesAreRemoved();
    void killedAnywhereTheFileIsWhole();

private:
    /// Names in the folder other than the file and its backup.
    QStringList otherFiles() const {
        QStringList names =
            QDir(folder_->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        names.removeAll("defaults.json");
        names.removeAll("defaults.json.bak");
        return names;
    }
    void asOrdinaryUser(mode_t folderMode, const QStringList& ownFiles,
                        const std::function<void()>& action) const;

    std::unique_ptr<QTemporaryDir> folder_;
    QString file_;
};
