#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QRect>
#include <QString>

class ListCell;
class QPainter;
class QWidget;

/// What a row reports: the cell whose button was pressed.
class ListCellDelegate {
public:
    virtual ~ListCellDelegate() = default;
    virtual void removeCellBtnTouch(const ListCell& cell) = 0;
    virtual void checkCellBtnTouch(const ListCell& cell) = 0;
};

/// One row of the list: icon, title, status text and two small buttons that appear under the
/// pointer. A light object that paints itself; the table gives the buttons of the row under the
/// pointer real widgets. Made fresh on each reload.
class ListCell {
public:
    /// The placeholder icon and texts that stand until the list view has set its own.
    ListCell();

    /// The height of a row, and the width that its status text and its buttons take at the right:
    /// 40 and 60 units, unless the user's font or language needs more.
    static int height(const QFontMetrics& metrics);
    static int statusRoom(const QFontMetrics& metrics);

    /// The rectangles of the row's parts, in the coordinates that `row` is given in.
    struct Layout {
        QRect icon;  // a square with the picture in its middle
        QRect title;
        QRect status;
        QRect checkButton;
        QRect deletedButton;
    };
    Layout layout(const QRect& row, const QFontMetrics& metrics) const;

    /// Whether the item is visible. Sets the status text and the icon's opacity and hides the
    /// reveal button.
    void setSelected(bool selected);
    bool selected() const { return selected_; }
    void setCellIcon(const QIcon& icon) { listIcon = icon; }
    void setCellTitle(const QString& title) { listTextField = title; }

    /// Under the pointer both buttons appear, the reveal button for a visible item only: the file
    /// manager cannot show a hidden one.
    void mouseEntered();
    void mouseExited();

    /// The action of the reveal button, and of the remove button.
    void searchFilePath() const;
    void delatedFilePath() const;

    /// Fills the row with the background colour (white when none is set) and draws icon and texts.
    void drawRect(QPainter& painter, const QRect& row) const;

    QColor backgroundColor;  ///< invalid until set
    QIcon listIcon;
    bool iconIsFresh = false;  ///< the icon was looked up for this cell
    QString listTextField;
    QString statuesTextField;
    bool checkButtonHidden = true;
    bool deletedButtonHidden = true;
    QString filePath;
    int rowIndex = 0;
    ListCellDelegate* delegate = nullptr;  ///< not owned; may be null

private:
    bool selected_ = false;
    double iconOpacity_ = 1.0;
};
