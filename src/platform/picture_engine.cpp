#include "platform/picture_engine.h"

#include <QPainter>
#include <QPixmapCache>
#include <QResource>

QString PictureEngine::drawnFile(const QSize& size) const {
    return QStringLiteral(":/pictures/%1-%2x%3.pixels")
        .arg(name_)
        .arg(size.width())
        .arg(size.height());
}

const QIcon& PictureEngine::drawing() {
    if (drawing_.isNull()) {
        drawing_ = QIcon(QStringLiteral(":/images/%1.svg").arg(name_));
    }
    return drawing_;
}

void PictureEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
                          QIcon::State state) {
    const qreal ratio = painter->device()->devicePixelRatioF();
    QPixmap picture = pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state);
    picture.setDevicePixelRatio(ratio);
    painter->drawPixmap(rect, picture);
}

QPixmap PictureEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) {
    const QString file = drawnFile(size);
    QPixmap picture;
    // How a disabled picture looks is the style's business.
    if (mode == QIcon::Normal && QPixmapCache::find(file, &picture)) {
        return picture;
    }
    const QResource pixels(file);
    constexpr auto format = QImage::Format_ARGB32_Premultiplied;
    if (mode != QIcon::Normal || pixels.size() != qint64{4} * size.width() * size.height()) {
        return drawing().pixmap(size, 1.0, mode, state);
    }
    picture = QPixmap::fromImage(QImage(pixels.data(), size.width(), size.height(), format));
    QPixmapCache::insert(file, picture);
    return picture;
}

QSize PictureEngine::actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) {
    return QResource(drawnFile(size)).isValid() ? size : drawing().actualSize(size, mode, state);
}
