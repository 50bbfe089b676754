#include <algorithm>
#include <vector>

#include <QMimeData>
#include <QScrollBar>
#include <QUrl>

#include "bare_list.h"
#include "main_window.h"
#include "work.h"

namespace {

QStringList titlesOf(const ItemList& list) {
    QStringList titles;
    titles.reserve(list.size());
    list.forEach([&](const ItemRecord& record) { titles << record.fileTitle(); });
    return titles;
}

void showPage(QListView& list, int page, int rows, int rowHeight) {
    QScrollBar* bar = list.verticalScrollBar();
    bar->setValue(page * rows * rowHeight % std::max(1, bar->maximum()));
    list.viewport()->repaint();
}

}  // namespace

void measureScroll(int rounds) {
    constexpr int rows = 20;
    MainWindow window;
    window.load();
    window.show(rows);
    DragDropTableView& table = window.table();
    BareList bare(titlesOf(*window.list().fileLists()), table.rowHeight());
    bare.resize(table.viewport()->size() + QSize(bare.verticalScrollBar()->sizeHint().width(), 0));
    bare.show();
    comeToRest();
    for (int round = 1; round <= rounds + 2; ++round) {
        const int page = round * 37;
        const double ours = milliseconds([&] { showPage(table, page, rows, table.rowHeight()); });
        const double icons = milliseconds([&] { comeToRest(); });
        const double floor = milliseconds([&] { showPage(bare, page, rows, table.rowHeight()); });
        comeToRest();
        if (round > 2) {
            tell("scroll", ours, floor, icons);
        }
    }
}

void measureSort(int rounds) {
    MainWindow window;
    window.load();
    window.show(10);
    const auto reload = [&window] {
        window.table().reloadData();
        window.table().viewport()->repaint();
    };
    const QStringList titles = titlesOf(*window.list().fileLists());
    for (int round = 0; round < rounds; ++round) {
        const double sort = milliseconds([&] {
            window.list().topViw()->leftButton()->click();
            window.table().viewport()->repaint();
        });
        comeToRest();
        const double reloading = milliseconds(reload);
        comeToRest();
        // Each from the order that the other way round has left.
        std::vector<QString> strings(titles.cbegin(), titles.cend());
        if (round % 2 == 0) {
            std::sort(strings.begin(), strings.end(), std::greater<>());
            const double floor = milliseconds([&] { std::sort(strings.begin(), strings.end()); });
            tell("sort", sort, floor, reloading);
        } else {
            std::sort(strings.begin(), strings.end());
            const double floor =
                milliseconds([&] { std::sort(strings.begin(), strings.end(), std::greater<>()); });
            tell("sort", sort, floor, reloading);
        }
    }
}

void measureDrop(int rounds, int dropped) {
    MainWindow window;
    window.load();
    window.show(10);
    const std::optional<ItemList> before = window.list().fileLists();
    for (int round = 0; round < rounds; ++round) {
        QList<QUrl> addresses;
        for (int i = 0; i < dropped; ++i) {
            addresses << QUrl::fromLocalFile(
                QStringLiteral("/home/user/Documents/round %1/Paper %2.txt").arg(round).arg(i));
        }
        QMimeData source;
        source.setUrls(addresses);
        // As a drag brings it, one text of addresses.
        QMimeData drag;
        drag.setData(QStringLiteral("text/uri-list"), source.data(QStringLiteral("text/uri-list")));
        const double floor = milliseconds([&] {
            QStringList paths;
            for (const QUrl& url : drag.urls()) {
                paths << url.toLocalFile();
            }
        });
        const double drop = milliseconds([&] {
            window.list().prepareForDragOperation(&drag);
            window.table().viewport()->repaint();
        });
        comeToRest();
        window.list().setFileLists(before);
        window.list().reloadData();
        comeToRest();
        tell("drop", drop, floor);
    }
}
