#pragma once

#include <memory>

#include <QSettings>

#include "state/store.h"

/// Keeps the user defaults in `QSettings`, whose native format is the defaults database of macOS,
/// with the types of a property list kept apart. The system saves changes by itself.
///
/// What a property list has no type for (null, an integer beyond qlonglong) is kept as a text: null
/// reads as null again, the integer as its digits. A text that begins with @ is written with a
/// second one, which other programs see.
class MacStore final : public Store {
public:
    explicit MacStore(std::unique_ptr<QSettings> settings);

    QVariant value(const QString& key) const override;
    void setValue(const QString& key, const QVariant& value) override;
    bool synchronize() override;
    QString problem() const override { return {}; }

private:
    std::unique_ptr<QSettings> settings_;
};
