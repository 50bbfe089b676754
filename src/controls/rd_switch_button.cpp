#include "controls/rd_switch_button.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>

#include "controls/looks.h"
#include "platform/bundle.h"

namespace {

constexpr qreal cornerRadius = 4.0;
constexpr QSize pictureSize{96, 26};
constexpr int focusMargin = 3;

}  // namespace

RDSwitchButton::RDSwitchButton(QWidget* parent) : QAbstractButton(parent) {
    setImage(QStringLiteral("switch-pressed-right"));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void RDSwitchButton::setOn(bool on) {
    if (on_ == on) {
        return;
    }
    on_ = on;
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void RDSwitchButton::setButtonOnOrOff() {
    setOn(!on_);
    setImage(on_ ? QStringLiteral("switch-pressed-right") : QStringLiteral("switch-left"));
}

void RDSwitchButton::setImage(const QString& name) {
    if (imageName_ == name) {
        return;
    }
    imageName_ = name;
    image_ = Bundle::imageNamed(name);
    update();
}

QSize RDSwitchButton::sizeHint() const {
    return grown(pictureSize, font()) + QSize(2 * focusMargin, 2 * focusMargin);
}

void RDSwitchButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRect picture(QPoint(), grown(pictureSize, font()));
    picture.moveCenter(rect().center());
    if (hasFocus()) {
        drawFocusRing(painter, picture, cornerRadius);
    }
    QPainterPath corners;
    corners.addRoundedRect(picture, cornerRadius, cornerRadius);
    painter.setClipPath(corners);
    drawPicture(painter, image_, picture, isEnabled());
    QStyleOption option;
    option.initFrom(this);
    option.state.setFlag(QStyle::State_Sunken, isDown());
    painter.fillPath(corners, stateShade(option.state));
}

void RDSwitchButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        animateClick();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}
