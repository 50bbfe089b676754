#pragma once

#include <QListView>

/// The floor of the list: a view whose delegate paints an icon and two texts for each row, and
/// nothing else.
class BareList final : public QListView {
public:
    BareList(const QStringList& titles, int rowHeight);
};
