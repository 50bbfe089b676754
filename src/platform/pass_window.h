#pragma once

#include <QElapsedTimer>
#include <QString>

#include "platform/shell.h"

/// The small window that shows how far a pass over the list is, once the pass has taken half a
/// second. It is a program of its own, so that it answers while this one, which waits for one
/// command line after the other, handles no event. Main thread only.
class PassWindow final {
public:
    enum class Pass { Launch, Quit };

    /// The pass, over `total` items, begins now. `program` is the path of "progress" in the
    /// companions' folder; if it cannot be started the pass goes on without a window. `above` is
    /// the X11 identifier of the window that the pass belongs to, 0 for none.
    PassWindow(const QString& program, Pass pass, qsizetype total, quintptr above = 0);
    /// The pass is over: the window closes, which is not waited for.
    ~PassWindow();
    Q_DISABLE_COPY_MOVE(PassWindow)

    /// To be called before each item, with the number of those that are done and the name of the
    /// next; empty for a name that may not be shown. False once the user has stopped the pass,
    /// which also ends the command line that is waited for at that moment. Only a quit pass can be
    /// stopped.
    bool next(qsizetype done, const QString& name);
    /// Whether the user has stopped the pass, as far as is known; also after the last item.
    bool isStopped() const { return stopped_; }

private:
    bool follow();
    void start();

    QString program_;
    Pass pass_;
    qsizetype total_;
    quintptr above_;
    qsizetype done_ = 0;
    QString name_;
    qsizetype told_ = -1;
    bool started_ = false;
    bool stopped_ = false;
    int socket_ = -1;
    int process_ = -1;
    QElapsedTimer sinceStart_;
    QElapsedTimer sinceWork_;
    WhileWaiting waiting_{[this] { return follow(); }};
};
