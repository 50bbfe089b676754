#include "platform/picture_engine.h"

#include <QFile>
#include <QPainter>
#include <QPixmapCache>

QString PictureEngine::drawnFile(const QSize& size) const {
    return QStringLiteral(":/pictures/%1-%2x%3.png")
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
    // How a disabled picture looks is the style's business.
    if (mode != QIcon::Normal || !QFile::exists(file)) {
        return drawing().pixmap(size, 1.0, mode, state);
    }
    QPixmap picture;
    if (!QPixmapCache::find(file, &picture)) {
        picture.load(file);
        QPixmapCache::insert(file, picture);
    }
    return picture;
}

QSize PictureEngine::actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) {
    return QFile::exists(drawnFile(size)) ? size : drawing().actualSize(size, mode, state);
}
