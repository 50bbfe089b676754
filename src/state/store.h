#pragma once

#include <memory>

#include <QObject>
#include <QString>
#include <QVariant>

/// Where the user defaults are kept on this system. UserDefaults describes the functions of the
/// same names. Main thread only.
class Store : public QObject {
    Q_OBJECT

public:
    /// The store of the system that the program was built for. The file counts only where the
    /// system has no defaults database of its own.
    static std::unique_ptr<Store> open(const QString& file);

    /// In its stored form; invalid when the key is absent.
    virtual QVariant value(const QString& key) const = 0;
    /// Takes a value in its stored form (stored_value.h).
    virtual void setValue(const QString& key, const QVariant& value) = 0;
    virtual bool synchronize() = 0;
    /// False while what is stored cannot be read; nothing is taken or saved then.
    virtual bool isRead() const { return true; }
    /// Tries again to read; whether what is stored is read now.
    virtual bool readAgain() { return true; }
    virtual QString problem() const = 0;

signals:
    void problemChanged();
};
