#pragma once

#include <QProxyStyle>

/// The desktop's own style, but for flat push buttons: they lie in a pane as a text at its left
/// edge, or as a picture. Menus and menu bars have the colours of the window that they belong to,
/// and on dark and on high-contrast desktops boxes, fields, buttons, scroll and progress bars have
/// a frame that can be seen. Check boxes grow with the font.
class VelmoraStyle final : public QProxyStyle {
    Q_OBJECT

public:
    /// Goes around the style that the application object has chosen: the desktop's own, the one
    /// that the user has named, or Fusion. Once, when that object is there: before it nobody knows
    /// of the desktop.
    static void wear();

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;

private:
    using QProxyStyle::QProxyStyle;
    bool isFusion() const;
};
