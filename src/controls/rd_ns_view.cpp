#include "controls/rd_ns_view.h"

#include <cstdlib>

#include <QPainter>

namespace {

constexpr unsigned noiseSeed = 124;
constexpr int tileSide = 128;
constexpr float defaultGrain = 0.035F;

}  // namespace

RDNSView::RDNSView(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setGrain(defaultGrain);
}

void RDNSView::setGrain(float factor) {
    noisePattern_ = createNoiseImageRefWithWidth(tileSide, tileSide, factor);
    update();
}

void RDNSView::setBackgroundColor(const QColor& color) {
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
    // The grain brightens the colour by its pixel values. One tile pixel is one unit of the view,
    // and tiling starts at the bottom left corner.
    painter.setCompositionMode(QPainter::CompositionMode_Plus);
    const int above = (tileSide - height() % tileSide) % tileSide;
    painter.drawTiledPixmap(rect(), QPixmap::fromImage(noisePattern_), QPoint(0, above));
}
