#pragma once

#include <QColor>
#include <QImage>
#include <QWidget>

/// A plain backdrop: a flat colour with a fine grey grain laid over it.
class RDNSView : public QWidget {
    Q_OBJECT

public:
    /// Grain 0.035 over B9BEC5.
    explicit RDNSView(QWidget* parent = nullptr);

    /// Makes a new 128 x 128 tile of that strength. The factor itself is not kept: grain() answers
    /// 0.0 whatever was set.
    void setGrain(float factor);
    float grain() const { return grain_; }

    void setBackgroundColor(const QColor& color);
    QColor backgroundColor() const { return backgroundColor_; }

    /// The tile in use, one grey byte a pixel.
    const QImage& noisePattern() const { return noisePattern_; }

    /// A grey tile of noise: for each pixel, first row first, the next number of the standard
    /// library's generator seeded with 124, modulo 256, times `factor` in single precision,
    /// truncated. Every tile is the same sequence. A null image when either side is not positive.
    static QImage createNoiseImageRefWithWidth(int width, int height, float factor);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage noisePattern_;
    QColor backgroundColor_{185, 190, 197};
    float grain_ = 0.0F;
};
