#include "controls/rd_ns_view.h"

#include <cstdlib>

#include <QPainter>

namespace {

constexpr unsigned noiseSeed = 124;
constexpr int tileSide = 128;
constexpr float defaultGrain = 0.035F;
constexpr QColor defaultBackground{185, 190, 197};

}  // namespace

RDNSView::RDNSView(QWidget* parent) : QWidget(parent) {
    setGrain(defaultGrain);
    setBackgroundColor(defaultBackground);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void RDNSView::setGrain(float factor) {
    noisePattern_ = createNoiseImageRefWithWidth(tileSide, tileSide, factor);
    update();
}

void RDNSView::setBackgroundColor(const QColor& color) {
    if (color == backgroundColor_) {
        return;
    }
    backgroundColor_ = color;
    update();
}

QImage RDNSView::createNoiseImageRefWithWidth(int width, int height, float factor) {
    std::srand(noiseSeed);
    if (width <= 0 || height <= 0) {
        return {};
    }
    QImage tile(width, height, QImage::Format_Grayscale8);
    for (int y = 0; y < height; ++y) {
        uchar* line = tile.scanLine(y);
        for (int x = 0; x < width; ++x) {
            const auto random = static_cast<float>(std::rand() % 256);
            line[x] = static_cast<uchar>(static_cast<int>(random * factor) & 0xFF);
        }
    }
    return tile;
}

void RDNSView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), backgroundColor_);
    // Plus-lighter: the tile brightens the fill by its pixel values. One tile pixel is one unit of
    // the view, and tiling starts at the bottom left corner.
    painter.setCompositionMode(QPainter::CompositionMode_Plus);
    painter.translate(0, height() % tileSide);
    QBrush grain(noisePattern_);
    painter.fillRect(QRect(0, -tileSide, width(), height() + tileSide), grain);
}
