#pragma once

#include <functional>

#include <QObject>
#include <QTimer>

class QWidget;

/// Work on what a widget shows that may take a while. It is done in the turn of the event loop
/// after the next painting of the widget, so that the window does not wait for it. Requested while
/// the widget is out of sight, it waits until that comes into view.
class AfterPaint final : public QObject {
public:
    /// `widget` must outlive this object.
    AfterPaint(QWidget* widget, std::function<void()> work);

    /// Several requests before the work is done are one.
    void request();
    /// Withdraws a request whose work is not done yet.
    void cancel();

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QWidget* widget_;
    QTimer timer_;
    bool requested_ = false;
};
