#pragma once

#include <QProxyStyle>

/// The desktop's own style, but for flat push buttons: they lie in a pane as a text at its left
/// edge, or as a picture.
class VelmoraStyle final : public QProxyStyle {
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
};
