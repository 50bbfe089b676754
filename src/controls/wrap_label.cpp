#include "controls/wrap_label.h"

#include <algorithm>
#include <cmath>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QPainter>
#include <QTextLayout>

#include "platform/shown_text.h"

namespace {

qreal layOut(QTextLayout& layout, int width, Qt::Alignment alignment) {
    // The layout takes no plain line break.
    layout.setText(layout.text().replace(u'\n', QChar::LineSeparator));
    QTextOption option(alignment);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    qreal height = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, height});
        height += line.height();
    }
    layout.endLayout();
    return height;
}

}  // namespace

WrapLabel::WrapLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void WrapLabel::setName(const QString& name) {
    name_ = name;
    setText(shownName(name));
}

int WrapLabel::heightForWidth(int width) const {
    QTextLayout layout(text(), font());
    return std::max(fontMetrics().height(),
                    static_cast<int>(std::ceil(layOut(layout, width, alignment()))));
}

QSize WrapLabel::sizeHint() const {
    const int width = fontMetrics().averageCharWidth() * 24;
    return {width, heightForWidth(std::max(width, this->width()))};
}

QSize WrapLabel::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 8, fontMetrics().height()};
}

void WrapLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    QTextLayout layout(text(), font());
    layOut(layout, width(), alignment());
    layout.draw(&painter, QPointF());
}

void WrapLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    updateGeometry();
}

void WrapLabel::contextMenuEvent(QContextMenuEvent* event) {
    if (text().isEmpty()) {
        return;
    }
    QMenu menu(this);
    menu.addAction(tr("&Copy"), this, [this] {
        const bool named = text() == shownName(name_);
        QGuiApplication::clipboard()->setText(named ? name_ : text());
    });
    menu.exec(event->globalPos());
}
