#pragma once

#include <functional>
#include <optional>

#include <QObject>

class DragDropView;
class PictureLabel;
class QLabel;
class QWidget;

/// What the window shows of whether the list can be changed. While there are no rows, that is the
/// introductory text and below it an invitation to add items, or that the list is locked. While
/// there are rows, it is the sentence that closed() reports. A drop or command that is refused
/// shows no message of its own.
class ListState final : public QObject {
    Q_OBJECT

public:
    /// Not owned; must outlive this object.
    struct Outlets {
        const DragDropView* fileListView;
        QWidget* textScrollCiew;  // holds the introductory text and the invitation
        PictureLabel* invitationPicture;
        QLabel* invitationHint;
    };
    /// `canEditorItem`: whether the list may be changed now. It is called in refresh().
    ListState(const Outlets& outlets, std::function<bool()> canEditorItem,
              QObject* parent = nullptr);

    /// Shows the state as it is now. Call it when the rows, the lock or the gate for drops change.
    void refresh();

signals:
    /// Emitted by every refresh(): why the list that is shown takes no drops, translated; empty
    /// when it takes them, has no rows, or was not read.
    void closed(const QString& reason);

private:
    enum class Gate { Open, DropsClosed, Locked, StoreUnread };

    Gate gate() const;
    void showHint(Gate gate);

    Outlets outlets_;
    std::function<bool()> canEditorItem_;
    std::optional<Gate> shownGate_;
};
