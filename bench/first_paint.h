#pragma once

#include <QObject>

/// Tells on standard output, in nanoseconds of the monotonic clock, when the first main window of
/// this process was painted and handed to the display. Ends the process then, unless it is to stay
/// for its memory to be looked at ("--stay" among the arguments).
class FirstPaint final : public QObject {
public:
    explicit FirstPaint(const QStringList& arguments);

    bool eventFilter(QObject* object, QEvent* event) override;

protected:
    void customEvent(QEvent* event) override;

private:
    bool stay_;
    bool seen_ = false;
};
