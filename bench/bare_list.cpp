#include "bare_list.h"

#include <QPainter>
#include <QStringListModel>
#include <QStyledItemDelegate>

namespace {

class RowDelegate final : public QStyledItemDelegate {
public:
    RowDelegate(QObject* parent, int rowHeight)
        : QStyledItemDelegate(parent), rowHeight_(rowHeight), icon_(24, 24) {
        icon_.fill(Qt::darkCyan);
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const QRect row = option.rect;
        painter->fillRect(row, Qt::white);
        painter->drawPixmap(row.x() + 8, row.y() + (row.height() - 24) / 2, icon_);
        painter->setPen(Qt::black);
        const QString title = index.data().toString();
        const int width = row.width() - 110;
        painter->drawText(QRect(row.x() + 40, row.y(), width, row.height()),
                          Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                          painter->fontMetrics().elidedText(title, Qt::ElideMiddle, width));
        painter->drawText(QRect(row.right() - 70, row.y(), 70, row.height()),
                          Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Visible"));
    }
    QSize sizeHint(const QStyleOptionViewItem& /*option*/,
                   const QModelIndex& /*index*/) const override {
        return {1, rowHeight_};
    }

private:
    int rowHeight_;
    QPixmap icon_;
};

}  // namespace

BareList::BareList(const QStringList& titles, int rowHeight) {
    setModel(new QStringListModel(titles, this));
    setItemDelegate(new RowDelegate(this, rowHeight));
    setUniformItemSizes(true);
    setVerticalScrollMode(ScrollPerPixel);
    setFrameShape(NoFrame);
}
