#include "controls/velmora_style.h"

#include <QPainter>
#include <QStyleOptionButton>

#include "controls/pane_button.h"

namespace {

const QStyleOptionButton* flatButton(const QStyleOption* option) {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    return button != nullptr && button->features.testFlag(QStyleOptionButton::Flat) ? button
                                                                                    : nullptr;
}

void drawFlatButton(QPainter& painter, const QStyleOptionButton& button) {
    const bool enabled = button.state.testFlag(QStyle::State_Enabled);
    drawPaneButtonFrame(painter, button.rect, button.state.testFlag(QStyle::State_Sunken),
                        button.state.testFlag(QStyle::State_HasFocus));
    const QRect contents = button.rect.adjusted(paneButtonMargin, paneButtonMargin,
                                                -paneButtonMargin, -paneButtonMargin);
    if (!button.icon.isNull()) {
        const QRect picture =
            QStyle::alignedRect(button.direction, Qt::AlignCenter, button.iconSize, contents);
        button.icon.paint(&painter, picture, Qt::AlignCenter,
                          enabled ? QIcon::Normal : QIcon::Disabled,
                          button.state.testFlag(QStyle::State_On) ? QIcon::On : QIcon::Off);
    } else {
        painter.setPen(button.palette.color(QPalette::ButtonText));
        painter.drawText(contents,
                         QStyle::visualAlignment(button.direction, Qt::AlignLeft) |
                             Qt::AlignVCenter | Qt::TextShowMnemonic,
                         button.text);
    }
}

}  // namespace

void VelmoraStyle::drawControl(ControlElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
    const QStyleOptionButton* flat = element == CE_PushButton ? flatButton(option) : nullptr;
    if (flat != nullptr) {
        drawFlatButton(*painter, *flat);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

QSize VelmoraStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                     const QSize& size, const QWidget* widget) const {
    if (type == CT_PushButton && flatButton(option) != nullptr) {
        return size + QSize(2 * paneButtonMargin, 2 * paneButtonMargin);
    }
    return QProxyStyle::sizeFromContents(type, option, size, widget);
}
