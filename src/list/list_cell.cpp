#include "list/list_cell.h"

#include <algorithm>

#include <QFontMetrics>
#include <QPainter>

#include "platform/bundle.h"
#include "platform/log.h"

namespace {

constexpr int buttonSide = 20;
constexpr int titleLeft = 40;
constexpr int statusWidth = 60;
constexpr int iconSide = 24;
constexpr const char* visibleKey = "lEi-kk-qD3.title";
constexpr const char* hiddenKey = "L5h-mo-cYT.title";

QString mainTableText(const char* key) {
    return Bundle::localizedString(QLatin1String(key), QStringLiteral("Main"));
}

int widest(const QFontMetrics& metrics, const QStringList& texts) {
    int width = 0;
    for (const QString& text : texts) {
        width = std::max(width, metrics.horizontalAdvance(text));
    }
    return width;
}

}  // namespace

ListCell::ListCell()
    : listIcon(Bundle::imageNamed(QStringLiteral("apptest"))),
      listTextField(QStringLiteral("90后")),
      statuesTextField(QStringLiteral("Visible")) {}

ListCell::Layout ListCell::layout(const QRect& row, const QFontMetrics& metrics) const {
    // The status text and the buttons share the right edge; the text's 60 units grow with the
    // font and the language, alike for every row, so that it never runs under a button.
    const int textWidth =
        widest(metrics, {statuesTextField, mainTableText(visibleKey), mainTableText(hiddenKey)});
    const int statusRoom = std::max(statusWidth, textWidth + buttonSide + 2);
    const int titleRight = row.right() + 1 - statusRoom;
    Layout layout;
    layout.icon = QRect(row.x() + (titleLeft - iconSide) / 2,
                        row.y() + (row.height() - iconSide) / 2, iconSide, iconSide);
    layout.title =
        QRect(row.x() + titleLeft, row.y(), titleRight - row.x() - titleLeft - 4, row.height());
    layout.status = QRect(titleRight, row.y(), statusRoom, row.height());
    const int buttonLeft = row.right() + 1 - buttonSide;
    const int middle = row.y() + row.height() / 2;
    layout.checkButton = QRect(buttonLeft, middle - buttonSide, buttonSide, buttonSide);
    layout.deletedButton = QRect(buttonLeft, middle, buttonSide, buttonSide);
    return layout;
}

void ListCell::setSelected(bool selected) {
    statuesTextField = mainTableText(selected ? visibleKey : hiddenKey);
    iconOpacity_ = selected ? 1.0 : 0.5;
    checkButtonHidden = true;
    selected_ = selected;
}

void ListCell::mouseEntered() {
    if (selected_) {
        checkButtonHidden = false;
    }
    deletedButtonHidden = false;
}

void ListCell::mouseExited() {
    checkButtonHidden = true;
    deletedButtonHidden = true;
}

void ListCell::searchFilePath() const {
    Log::line(QStringLiteral("search:") + filePath);
    if (delegate != nullptr) {
        delegate->checkCellBtnTouch(*this);
    }
}

void ListCell::delatedFilePath() const {
    Log::line(QStringLiteral("delated:") + filePath);
    if (delegate != nullptr) {
        delegate->removeCellBtnTouch(*this);
    }
}

void ListCell::drawRect(QPainter& painter, const QRect& row) const {
    painter.fillRect(row, backgroundColor.isValid() ? backgroundColor : QColor(Qt::white));
    const QFontMetrics metrics = painter.fontMetrics();
    const Layout parts = layout(row, metrics);
    painter.setOpacity(iconOpacity_);
    listIcon.paint(&painter, parts.icon);
    painter.setOpacity(1.0);
    painter.setPen(Qt::black);
    // A line break in a file's name must not break the row.
    QString title = listTextField;
    title.replace(u'\n', u' ');
    painter.drawText(parts.title, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     metrics.elidedText(title, Qt::ElideMiddle, parts.title.width()));
    painter.drawText(parts.status, Qt::AlignLeft | Qt::AlignVCenter, statuesTextField);
}
