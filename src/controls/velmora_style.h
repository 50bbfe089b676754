#pragma once

#include <QProxyStyle>

/// The desktop's own style, but for two things: flat push buttons lie in a pane as a text at its
/// left edge, or as a picture, and the mark of a menu bar too narrow for its menus is a picture of
/// ours, read when it is shown. (The style's own would be read from a file at every start.)
class VelmoraStyle final : public QProxyStyle {
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override;
};
