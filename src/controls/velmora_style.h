#pragma once

#include <QProxyStyle>

/// The desktop's own style, with these changes. Flat push buttons are drawn as a left-aligned text
/// or a picture, without a frame. Menus and menu bars have the colours of the window that they
/// belong to. Where the style's frames are too faint (on black and white windows, with Fusion on
/// all dark ones), boxes, fields, buttons, scroll and progress bars get one that can be seen. Check
/// boxes grow with the font.
class VelmoraStyle final : public QProxyStyle {
    Q_OBJECT

public:
    /// Wraps the style that the application object has chosen (the desktop's own, the one that the
    /// user has named, or Fusion) and makes the result the application's style. Call once, after
    /// the application object is made.
    static void install();

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
