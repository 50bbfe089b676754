#pragma once

#include <QObject>
#include <QString>

/// Finds out whether an item is in the state that was asked for, as a file manager that is opened
/// now would see it. The window does not wait for the answer.
class ItemVisibility final : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Looks the item up and answers with checked(), unless another check has been asked for
    /// since.
    void check(const QString& path, bool askedVisible);

signals:
    /// `message`: a sentence for the user when the item is not in the state that was asked for,
    /// with the reason as far as it can be told; empty when it is.
    void checked(const QString& message);

private:
    void answer(const QString& path, bool askedVisible, bool hidden);

    int checks_ = 0;
};
