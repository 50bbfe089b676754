#pragma once

#include <future>

#include "state/json_codec.h"
#include "state/store.h"
#include "state/store_file.h"

/// Keeps the user defaults in one JSON file. Changes are gathered until the next turn of the event
/// loop; one save at a time then writes a snapshot on a thread of its own.
class JsonStore final : public Store {
    Q_OBJECT

public:
    explicit JsonStore(const QString& file);
    /// Waits for the last save.
    ~JsonStore() override;

    QVariant value(const QString& key) const override;
    void setValue(const QString& key, const QVariant& value) override;
    bool synchronize() override;
    bool isRead() const override { return isRead_; }
    bool readAgain() override;
    QString problem() const override;

signals:
    /// There is something to save in the next turn of the event loop.
    void changed();
    /// Sent from the thread of the save.
    void saveEnded(int number);

private:
    void load();
    void replaceDamaged(StoreReading::State copy);
    bool keepOldFile();
    void scheduleSave();
    void saveChanges();
    void startSave();
    void takeResult(int number);
    void finishSave();
    void tell(QString& place, const QString& text);

    const QString file_;
    const QString backup_;
    StoreContents contents_;
    bool isRead_ = true;

    // Changes that no save has taken up, or that the last one failed to keep.
    bool unsaved_ = false;
    bool scheduled_ = false;
    int saveNumber_ = 0;
    // The save in progress; gives the reason when it failed.
    std::future<QString> save_;

    // When not empty, the file holds something that no save may replace before it was set aside;
    // the text then tells so, with a place for the new name.
    QString noticeOnceAside_;
    // The same of the backup, of which nothing need be told: no save needs it.
    bool backupIsDamaged_ = false;
    QString notice_;
    QString saveProblem_;
};
