#pragma once

#include <QIcon>
#include <QIconEngine>

/// Shows one of the images that come with the program. The sizes that were drawn while building
/// are taken as they are; only for others is the drawing itself read, when one is asked for.
class PictureEngine final : public QIconEngine {
public:
    explicit PictureEngine(const QString& name) : name_(name) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QString key() const override { return QStringLiteral("picture"); }
    QIconEngine* clone() const override { return new PictureEngine(name_); }

private:
    QString drawnFile(const QSize& size) const;
    const QIcon& drawing();

    QString name_;
    QIcon drawing_;
};
