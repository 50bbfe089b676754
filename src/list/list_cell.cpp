#include "list/list_cell.h"

#include <algorithm>

#include <QFontMetrics>
#include <QPainter>

#include "controls/looks.h"
#include "platform/bundle.h"
#include "platform/log.h"
#include "platform/shown_text.h"

namespace {

constexpr int usualHeight = 40;
constexpr int statusWidth = 60;
constexpr int statusGap = 20;
constexpr const char* visibleKey = "lEi-kk-qD3.title";
constexpr const char* hiddenKey = "L5h-mo-cYT.title";

QString mainTableText(const char* key) {
    return Bundle::localizedString(QLatin1String(key), QStringLiteral("Main"));
}

}  // namespace

ListCell::ListCell()
    : listIcon(Bundle::imageNamed(QStringLiteral("apptest"))),
      listTextField(QStringLiteral("90后")),
      statuesTextField(QStringLiteral("Visible")) {}

int ListCell::height(const QFontMetrics& metrics) {
    return std::max(usualHeight, metrics.height() * 8 / 5);
}

int ListCell::statusRoom(const QFontMetrics& metrics) {
    // Text and buttons share the right edge; the text never runs under a button, and its place is
    // the same in every row.
    const int text = std::max(metrics.horizontalAdvance(mainTableText(visibleKey)),
                              metrics.horizontalAdvance(mainTableText(hiddenKey)));
    return std::max(statusWidth, text + height(metrics) / 2 + 2);
}

ListCell::Layout ListCell::layout(const QRect& row, const QFontMetrics& metrics) const {
    const int side = row.height();
    const int buttonSide = side / 2;
    const int statusLeft = row.right() + 1 - statusRoom(metrics);
    const int buttonLeft = row.right() + 1 - buttonSide;
    return {
        .icon = QRect(row.x(), row.y(), side, side),
        .title = QRect(row.x() + side, row.y(), statusLeft - statusGap - row.x() - side, side),
        .status = QRect(statusLeft, row.y(), statusRoom(metrics), side),
        .checkButton = QRect(buttonLeft, row.y(), buttonSide, buttonSide),
        .deletedButton = QRect(buttonLeft, row.y() + buttonSide, buttonSide, buttonSide),
    };
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
    const int margin = row.height() / 5;
    drawPicture(painter, listIcon, parts.icon.adjusted(margin, margin, -margin, -margin));
    painter.setOpacity(1.0);
    painter.setPen(Qt::black);
    // A line break in a file's name must not break the row.
    const QString title = shownInLine(listTextField);
    painter.drawText(parts.title, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     metrics.elidedText(title, Qt::ElideMiddle, parts.title.width()));
    painter.drawText(parts.status, Qt::AlignLeft | Qt::AlignVCenter, statuesTextField);
}
