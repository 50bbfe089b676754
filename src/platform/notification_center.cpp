#include "platform/notification_center.h"

#include <algorithm>

NotificationCenter& NotificationCenter::defaultCenter() {
    static NotificationCenter center;
    return center;
}

void NotificationCenter::add(QObject* observer, const QString& name, Handler handler) {
    std::erase_if(registrations_, [](const Registration& r) { return r.observer.isNull(); });
    registrations_.push_back({observer, name, std::move(handler)});
}

void NotificationCenter::removeObserver(const QObject* observer, const QString& name) {
    std::erase_if(registrations_, [&](const Registration& r) {
        return r.observer.isNull() || (r.observer == observer && r.name == name);
    });
}

void NotificationCenter::postNotification(const QString& name, const QVariantMap& userInfo) {
    // Handlers may add, remove or destroy observers: walk a copy, ask again before each call.
    const std::vector<Registration> registrations = registrations_;
    const Notification notification{name, userInfo};
    for (const Registration& registration : registrations) {
        const bool stillThere = !registration.observer.isNull() &&
                                std::ranges::any_of(registrations_, [&](const Registration& r) {
                                    return r.observer == registration.observer && r.name == name;
                                });
        if (registration.name == name && stillThere) {
            registration.handler(notification);
        }
    }
}
