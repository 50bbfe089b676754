#include "controls/rd_ns_view.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include <QPaintEvent>
#include <QPainter>

namespace {

constexpr unsigned noiseSeed = 124;
constexpr int tileSide = 128;
constexpr float defaultGrain = 0.035F;
constexpr QColor defaultBackground{185, 190, 197};

}  // namespace

RDNSView::RDNSView(QWidget* parent) : QWidget(parent) {
    noisePattern_ = usualNoisePattern();
    setBackgroundColor(defaultBackground);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

const QImage& RDNSView::usualNoisePattern() {
    static const QImage usual = createNoiseImageRefWithWidth(tileSide, tileSide, defaultGrain);
    return usual;
}

void RDNSView::setGrain(float factor) {
    noisePattern_ = createNoiseImageRefWithWidth(tileSide, tileSide, factor);
    ground_ = {};
    update();
}

void RDNSView::setBackgroundColor(const QColor& color) {
    if (color == backgroundColor_) {
        return;
    }
    backgroundColor_ = color;
    ground_ = {};
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

const QPixmap& RDNSView::ground() {
    if (ground_.isNull()) {
        // Plus-lighter: the grain brightens the colour by its pixel values.
        std::array<QRgb, 256> brighter{};
        const QRgb color = backgroundColor_.rgb();
        for (int grain = 0; QRgb & shade : brighter) {
            shade = qRgb(std::min(qRed(color) + grain, 255), std::min(qGreen(color) + grain, 255),
                         std::min(qBlue(color) + grain, 255));
            ++grain;
        }
        QImage tile(noisePattern_.size(), QImage::Format_RGB32);
        for (int y = 0; y < tile.height(); ++y) {
            const uchar* grain = noisePattern_.constScanLine(y);
            std::transform(grain, grain + tile.width(), reinterpret_cast<QRgb*>(tile.scanLine(y)),
                           [&brighter](uchar value) { return brighter[value]; });
        }
        ground_ = QPixmap::fromImage(tile);
    }
    return ground_;
}

void RDNSView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    // One tile pixel is one unit of the view, and tiling starts at the bottom left corner.
    const int above = (tileSide - height() % tileSide) % tileSide;
    if (devicePixelRatioF() != 1.0) {
        painter.drawTiledPixmap(rect(), ground(), QPoint(0, above));
        return;
    }
    // Tile by tile is a mere copy; tiled in one go, Qt starts threads for it.
    const QRect visible = event->rect();
    for (int y = -above; y < height(); y += tileSide) {
        for (int x = 0; x < width(); x += tileSide) {
            if (visible.intersects(QRect(x, y, tileSide, tileSide))) {
                painter.drawPixmap(x, y, ground());
            }
        }
    }
}
