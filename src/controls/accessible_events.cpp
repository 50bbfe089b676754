#include "controls/accessible_events.h"

#include <QAccessible>
#include <QWidget>

namespace {

constexpr QChar bullet(0x2022);

QAccessible::UpdateHandler before = nullptr;

void handle(QAccessibleEvent* event);

void passOn(QAccessibleEvent& event) {
    if (before != nullptr) {
        before(&event);
        return;
    }
    // Without a handler it goes to the platform, which has no other public way in.
    QAccessible::installUpdateHandler(nullptr);
    QAccessible::updateAccessibility(&event);
    QAccessible::installUpdateHandler(handle);
}

// Qt sends the characters themselves, whatever the field shows.
void passOnAsBullets(QAccessibleInterface* field, const QAccessibleEvent& event) {
    const auto bullets = [](const QString& text) { return QString(text.size(), bullet); };
    if (event.type() == QAccessible::TextInserted) {
        const auto& inserted = static_cast<const QAccessibleTextInsertEvent&>(event);
        QAccessibleTextInsertEvent hidden(field, inserted.changePosition(),
                                          bullets(inserted.textInserted()));
        hidden.setCursorPosition(inserted.cursorPosition());
        passOn(hidden);
    } else if (event.type() == QAccessible::TextRemoved) {
        const auto& removed = static_cast<const QAccessibleTextRemoveEvent&>(event);
        QAccessibleTextRemoveEvent hidden(field, removed.changePosition(),
                                          bullets(removed.textRemoved()));
        hidden.setCursorPosition(removed.cursorPosition());
        passOn(hidden);
    } else {
        const auto& updated = static_cast<const QAccessibleTextUpdateEvent&>(event);
        QAccessibleTextUpdateEvent hidden(field, updated.changePosition(),
                                          bullets(updated.textRemoved()),
                                          bullets(updated.textInserted()));
        hidden.setCursorPosition(updated.cursorPosition());
        passOn(hidden);
    }
}

void handle(QAccessibleEvent* event) {
    const bool text = event->type() == QAccessible::TextInserted ||
                      event->type() == QAccessible::TextRemoved ||
                      event->type() == QAccessible::TextUpdated;
    if (text || event->type() == QAccessible::Focus) {
        QAccessibleInterface* const concerned = event->accessibleInterface();
        if (text && concerned != nullptr && concerned->state().passwordEdit) {
            passOnAsBullets(concerned, *event);
            return;
        }
        QAccessibleInterface* const inside =
            !text && concerned != nullptr && concerned->role() == QAccessible::List
                ? concerned->focusChild()
                : nullptr;
        if (inside != nullptr && inside != concerned) {
            QAccessibleEvent focus(inside, QAccessible::Focus);
            passOn(focus);
            return;
        }
    }
    passOn(*event);
}

}  // namespace

void installAccessibleEvents() {
    before = QAccessible::installUpdateHandler(handle);
}

void announce(QWidget* region, const QString& text) {
    if (!QAccessible::isActive() || text.isEmpty()) {
        return;
    }
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(region, text);
#else
    // Screen readers speak a notification when it is shown.
    QAccessibleEvent event(region, QAccessible::ObjectShow);
#endif
    QAccessible::updateAccessibility(&event);
}
