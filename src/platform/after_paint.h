#pragma once

#include <functional>

#include <QObject>
#include <QTimer>

class QWidget;

/// Work on what a widget shows that may take a while: it is done after the widget was painted
/// without it, once the window has nothing better to do. Asked for while the widget is out of
/// sight, it waits until that comes into view.
class AfterPaint final : public QObject {
public:
    AfterPaint(QWidget* widget, std::function<void()> work);

    /// Several requests before the work is done are one.
    void request();
    void cancel();

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QWidget* widget_;
    QTimer timer_;
    bool requested_ = false;
};
