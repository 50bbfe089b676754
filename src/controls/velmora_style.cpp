#include "controls/velmora_style.h"

#include <QApplication>
#include <QMenu>
#include <QPainter>
#include <QStyleOptionButton>

#include "controls/looks.h"
#include "controls/pane_button.h"

namespace {

const QStyleOptionButton* flatButton(const QStyleOption* option) {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    return button != nullptr && button->features.testFlag(QStyleOptionButton::Flat) ? button
                                                                                    : nullptr;
}

void drawFlatButton(QPainter& painter, const QStyleOptionButton& button) {
    drawPaneButtonFrame(painter, button.rect, button.state);
    const QRect contents = button.rect.adjusted(paneButtonMargin, paneButtonMargin,
                                                -paneButtonMargin, -paneButtonMargin);
    if (!button.icon.isNull()) {
        const QRect picture = QStyle::alignedRect(
            button.direction, Qt::AlignCenter, grown(button.iconSize, painter.font()), button.rect);
        drawPicture(painter, button.icon, picture, button.state.testFlag(QStyle::State_Enabled),
                    button.state.testFlag(QStyle::State_On) ? QIcon::On : QIcon::Off);
    } else {
        painter.setPen(button.palette.color(QPalette::ButtonText));
        painter.drawText(contents,
                         QStyle::visualAlignment(button.direction, Qt::AlignLeft) |
                             Qt::AlignVCenter | Qt::TextShowMnemonic,
                         button.text);
    }
}

// Styles draw their frames a little lighter or darker than the window, which is faint on a black or
// a white one. Fusion's, always darker, cannot be seen on any dark one.
bool framesAreFaint(const QStyleOption& option, bool isFusion) {
    constexpr int black = 12;
    constexpr int white = 254;
    constexpr int dark = 128;
    const int window = option.palette.color(QPalette::Window).lightness();
    return window < (isFusion ? dark : black) || window >= white;
}

bool needsFrame(QStyle::PrimitiveElement element, const QStyleOption& option) {
    switch (element) {
        case QStyle::PE_IndicatorCheckBox:
        case QStyle::PE_PanelButtonTool:
            return true;
        case QStyle::PE_FrameLineEdit:
        case QStyle::PE_PanelButtonCommand:
            return !option.state.testFlag(QStyle::State_HasFocus);
        default:
            return false;
    }
}

void drawFrame(QPainter& painter, const QStyleOption& option, const QRect& around, bool isFusion) {
    const qreal inset = isFusion ? 0.5 : 1.5;  // others leave room for a shadow
    const QColor text = option.palette.color(QPalette::WindowText);
    const QColor window = option.palette.color(QPalette::Window);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor((text.red() + window.red()) / 2, (text.green() + window.green()) / 2,
                          (text.blue() + window.blue()) / 2));
    painter.drawRoundedRect(QRectF(around).adjusted(inset, inset, -inset, -inset), 2, 2);
    painter.restore();
}

}  // namespace

void VelmoraStyle::install() {
    QApplication::setStyle(new VelmoraStyle(QApplication::style()));
}

void VelmoraStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    if (qobject_cast<QMenu*>(widget) != nullptr && widget->parentWidget() != nullptr) {
        widget->setPalette(widget->parentWidget()->window()->palette());
    }
}

void VelmoraStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (needsFrame(element, *option) && framesAreFaint(*option, isFusion())) {
        drawFrame(*painter, *option, option->rect, isFusion());
    }
}

void VelmoraStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ScrollBar && framesAreFaint(*option, isFusion())) {
        drawFrame(*painter, *option, subControlRect(control, option, SC_ScrollBarSlider, widget),
                  isFusion());
    }
}

bool VelmoraStyle::isFusion() const {
    return baseStyle()->name() == QLatin1String("fusion");
}

void VelmoraStyle::drawControl(ControlElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
    const QStyleOptionButton* flat = element == CE_PushButton ? flatButton(option) : nullptr;
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (flat != nullptr) {
        drawFlatButton(*painter, *flat);
    } else if (element == CE_MenuBarItem && item != nullptr && widget != nullptr) {
        // Breeze gives menu bars colours from the desktop's settings.
        QStyleOptionMenuItem title(*item);
        title.palette = widget->window()->palette();
        QProxyStyle::drawControl(element, &title, painter, widget);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
        // Breeze draws push buttons without the panel that others draw.
        const bool needs = element == CE_PushButtonBevel
                               ? !isFusion() && needsFrame(PE_PanelButtonCommand, *option)
                               : element == CE_ProgressBarGroove;
        if (needs && framesAreFaint(*option, isFusion())) {
            drawFrame(*painter, *option, option->rect, isFusion());
        }
    }
}

int VelmoraStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                              const QWidget* widget) const {
    const int given = QProxyStyle::pixelMetric(metric, option, widget);
    const bool isBox = metric == PM_IndicatorWidth || metric == PM_IndicatorHeight;
    return isBox && widget != nullptr ? grown(given, widget->font()) : given;
}

QSize VelmoraStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                     const QSize& size, const QWidget* widget) const {
    const QStyleOptionButton* flat = type == CT_PushButton ? flatButton(option) : nullptr;
    if (flat != nullptr) {
        const QSize contents = flat->icon.isNull() ? size : grown(flat->iconSize, widget->font());
        return contents + QSize(2 * paneButtonMargin, 2 * paneButtonMargin);
    }
    return QProxyStyle::sizeFromContents(type, option, size, widget);
}
