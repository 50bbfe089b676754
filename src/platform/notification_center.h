#pragma once

#include <functional>
#include <vector>

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariantMap>

/// What an observer is handed: the name it was posted under and the poster's user info.
struct Notification {
    QString name;
    QVariantMap userInfo;
};

/// Named messages between the program's own objects. Posting is synchronous: it returns after the
/// last observer has finished. Main thread only.
class NotificationCenter {
public:
    static NotificationCenter& defaultCenter();

    /// Registers `handler` of `observer` for `name`. Observers are called in the order of their
    /// registrations, once for each registration. One that has been destroyed is never called, even
    /// if its registration was not removed.
    template <typename Observer>
    void addObserver(Observer* observer, void (Observer::*handler)(const Notification&),
                     const QString& name) {
        add(observer, name,
            [observer, handler](const Notification& n) { (observer->*handler)(n); });
    }
    void removeObserver(const QObject* observer, const QString& name);
    void postNotification(const QString& name, const QVariantMap& userInfo = {});

private:
    using Handler = std::function<void(const Notification&)>;
    struct Registration {
        QPointer<QObject> observer;
        QString name;
        Handler handler;
    };

    void add(QObject* observer, const QString& name, Handler handler);

    std::vector<Registration> registrations_;
};
