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

// Plus-lighter: the grain brightens the colour by its pixel values.
QImage brightened(const QColor& background, const QImage& noise) {
    std::array<QRgb, 256> brighter{};
    const QRgb color = background.rgb();
    for (int grain = 0; QRgb & shade : brighter) {
        shade = qRgb(std::min(qRed(color) + grain, 255), std::min(qGreen(color) + grain, 255),
                     std::min(qBlue(color) + grain, 255));
        ++grain;
    }
    QImage tile(noise.size(), QImage::Format_RGB32);
    for (int y = 0; y < tile.height(); ++y) {
        const uchar* grain = noise.constScanLine(y);
        std::transform(grain, grain + tile.width(), reinterpret_cast<QRgb*>(tile.scanLine(y)),
                       [&brighter](uchar value) { return brighter[value]; });
    }
    return tile;
}

const QImage& usualNoisePattern() {
    static const QImage usual =
        RDNSView::createNoiseImageRefWithWidth(tileSide, tileSide, defaultGrain);
    return usual;
}

const QImage& usualGround() {
    static const QImage usual = brightened(defaultBackground, usualNoisePattern());
    return usual;
}

}  // namespace

RDNSView::RDNSView(QWidget* parent) : QWidget(parent), backgroundColor_(defaultBackground) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void RDNSView::prepareUsualGround() {
    usualGround();
}

const QImage& RDNSView::noisePattern() const {
    return noisePattern_.isNull() ? usualNoisePattern() : noisePattern_;
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

void RDNSView::paintEvent(QPaintEvent* event) {
    if (ground_.isNull()) {
        const bool usual = noisePattern_.isNull() && backgroundColor_ == defaultBackground;
        ground_ = usual ? usualGround() : brightened(backgroundColor_, noisePattern());
    }
    QPainter painter(this);
    // One tile pixel is one unit of the view, and tiling starts at the bottom left corner.
    const int above = (tileSide - height() % tileSide) % tileSide;
    if (devicePixelRatioF() != 1.0) {
        painter.drawTiledPixmap(rect(), QPixmap::fromImage(ground_), QPoint(0, above));
        return;
    }
    // Tile by tile is a mere copy; tiled in one go, Qt starts threads for it.
    const QRect visible = event->rect();
    for (int y = -above; y < height(); y += tileSide) {
        for (int x = 0; x < width(); x += tileSide) {
            if (visible.intersects(QRect(x, y, tileSide, tileSide))) {
                painter.drawImage(x, y, ground_);
            }
        }
    }
}
