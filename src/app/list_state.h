#pragma once

#include <functional>

#include <QObject>

class DragDropView;
class PictureLabel;
class QLabel;
class QWidget;

/// What the window shows of the list's state: the introductory text while there are no rows, below
/// it either an invitation or that the list is locked, and, while rows are shown, that drag and
/// drop is closed. Refusals themselves stay silent.
class ListState final : public QObject {
    Q_OBJECT

public:
    /// Not owned; must outlive this object.
    struct Outlets {
        const DragDropView* fileListView;
        QWidget* textScrollCiew;  // the introductory text with what stands around it
        PictureLabel* invitationPicture;
        QLabel* invitationHint;
    };
    /// `canEditorItem`: whether the list may be changed now.
    ListState(const Outlets& outlets, std::function<bool()> canEditorItem,
              QObject* parent = nullptr);

    /// Shows the state as it is now. Call it when the rows, the lock or the gate for drops change.
    void refresh();

signals:
    /// Why the list that is shown takes no drops; empty when it does.
    void closed(const QString& reason);

private:
    enum class Gate { Open, DropsClosed, Locked, StoreUnread };

    Gate gate() const;
    void showHint(Gate gate);

    Outlets outlets_;
    std::function<bool()> canEditorItem_;
};
