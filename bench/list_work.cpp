#include <algorithm>

#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QStringListModel>
#include <QStyledItemDelegate>

#include "work.h"

namespace {

/// The floor of a row: an icon and two texts, and nothing else.
class BareDelegate final : public QStyledItemDelegate {
public:
    BareDelegate(QObject* parent, int rowHeight)
        : QStyledItemDelegate(parent), rowHeight_(rowHeight), icon_(24, 24) {
        icon_.fill(Qt::darkCyan);
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const QRect title = option.rect.adjusted(40, 0, -70, 0);
        painter->fillRect(option.rect, Qt::white);
        painter->drawPixmap(option.rect.topLeft() + QPoint(8, (rowHeight_ - 24) / 2), icon_);
        painter->drawText(title, Qt::AlignVCenter | Qt::TextSingleLine,
                          painter->fontMetrics().elidedText(index.data().toString(),
                                                            Qt::ElideMiddle, title.width()));
        painter->drawText(title.translated(title.width(), 0), Qt::AlignVCenter,
                          QStringLiteral("Visible"));
    }
    QSize sizeHint(const QStyleOptionViewItem& /*option*/,
                   const QModelIndex& /*index*/) const override {
        return {1, rowHeight_};
    }

private:
    int rowHeight_;
    QPixmap icon_;
};

void showPage(QListView& list, int page, int rows, int rowHeight) {
    QScrollBar* bar = list.verticalScrollBar();
    bar->setValue(page * rows * rowHeight % std::max(1, bar->maximum()));
    list.viewport()->repaint();
}

}  // namespace

void measureScroll(int rounds) {
    constexpr int rows = 20;
    ShownWindow window(rows);
    DragDropTableView& table = window.table();
    QStringList titles;
    window.list().fileLists()->forEach(
        [&titles](const ItemRecord& record) { titles << record.fileTitle(); });
    QListView bare;
    QStringListModel model(titles);
    bare.setModel(&model);
    bare.setItemDelegate(new BareDelegate(&bare, table.rowHeight()));
    bare.setUniformItemSizes(true);
    bare.setVerticalScrollMode(QListView::ScrollPerPixel);
    bare.setFrameShape(QFrame::NoFrame);
    bare.resize(table.viewport()->size() + QSize(bare.verticalScrollBar()->sizeHint().width(), 0));
    bare.show();
    comeToRest();
    for (int round = 1; round <= rounds + 2; ++round) {
        const int page = round * 37;
        const double ours = milliseconds([&] { showPage(table, page, rows, table.rowHeight()); });
        comeToRest();
        const double floor = milliseconds([&] { showPage(bare, page, rows, table.rowHeight()); });
        comeToRest();
        if (round > 2) {
            tell(ours, floor);
        }
    }
}

void measureSort(int rounds) {
    ShownWindow window(10);
    const std::optional<ItemList> scattered = window.list().fileLists();
    for (int round = 0; round < rounds; ++round) {
        // From the order of the store, which has nothing to do with the titles, every other time.
        if (round % 2 == 0) {
            window.list().setFileLists(scattered);
            window.list().reloadData();
            comeToRest();
        }
        tell(milliseconds([&] {
            window.list().topViw()->leftButton()->click();
            window.table().viewport()->repaint();
        }));
        comeToRest();
    }
}

void measureDrop(int rounds) {
    ShownWindow window(10);
    const std::optional<ItemList> before = window.list().fileLists();
    for (int round = 0; round < rounds; ++round) {
        QByteArray addresses;
        for (qsizetype i = 0; i < before->size(); ++i) {
            addresses += "file:///home/user/Round-" + QByteArray::number(round) + "/Paper-" +
                         QByteArray::number(i) + ".txt\r\n";
        }
        QMimeData drag;
        drag.setData(QStringLiteral("text/uri-list"), addresses);
        tell(milliseconds([&] {
            window.list().prepareForDragOperation(&drag);
            window.table().viewport()->repaint();
        }));
        comeToRest();
        window.list().setFileLists(before);
        window.list().reloadData();
        comeToRest();
    }
}
