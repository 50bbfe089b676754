#pragma once

#include <QDir>
#include <QStringList>
#include <QTemporaryDir>

#include "files.h"
#include "list/drag_drop_view.h"
#include "state/user_defaults.h"

/// An environment of its own for one test: settings, files, recorded command lines, log lines and
/// what was opened. Nothing outside its temporary folder is touched.
class Sandbox {
public:
    Sandbox();
    ~Sandbox();

    QString folder() const { return folder_.path(); }
    /// Makes an empty file in the folder "files"; its path.
    QString makeFile(const QString& name) const;
    QStringList makeFiles(const QStringList& names) const;
    /// The commands that the shell was given since the last call, "chflags|hidden|/a b" each.
    QStringList commands() const;
    /// From now on the command of that name also runs this script, after it was recorded.
    void setCommand(const QString& name, const QString& script) const;
    /// Waits for what the file managers are told next: the names of the changed items, in order.
    QStringList told() const;
    /// Log lines since the last call.
    static QStringList log();

    UserDefaults& defaults() { return *defaults_; }
    void storeList(const QStringList& paths, VisibleForm form = VisibleForm::StringOne);
    /// The stored list as "title:form" ("a.txt:\"1\"", "b.txt:1"), for comparing.
    QString stored() const;
    static QString describe(const ItemList& list);

private:
    QStringList takeLines(const QString& name) const;

    QTemporaryDir folder_;
    std::unique_ptr<UserDefaults> defaults_;
};

/// A drop of these paths, through the view's real event handler.
void drop(DragDropView& view, const QStringList& paths);
