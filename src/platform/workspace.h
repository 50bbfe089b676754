#pragma once

#include <QIcon>
#include <QString>

/// What the desktop knows about files and does with them. The instance made last is the shared
/// one while it lives; a test puts its own in place.
class Workspace {
public:
    Workspace();
    virtual ~Workspace();
    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;

    static Workspace& shared();

    /// The file manager's icon of the item: from the desktop's icon theme, or one of our own
    /// where no theme has it. Never null, also for a path that does not exist.
    virtual QIcon iconForFile(const QString& path);
    /// The uniform type identifier ("public.folder", "public.png", at last "public.data"); a null
    /// string when nothing exists at `path`.
    virtual QString typeOfFile(const QString& path);
    /// Opens a folder in the file manager, a file with its default application.
    virtual void openFile(const QString& path);
    /// Opens a file manager's window in which the item is selected, or at least its folder.
    virtual void selectFile(const QString& path);
    /// Opens an address, of the web or of a local file, in the user's browser.
    virtual void openUrl(const QString& address);

private:
    Workspace* previous_;
};
