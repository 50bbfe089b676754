#pragma once

#include <QProxyStyle>

/// The desktop's own style, but for a picture that it would read from a file at every start: the
/// mark of a menu bar too narrow for its menus. It is one of ours and read when it is shown.
class VelmoraStyle final : public QProxyStyle {
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override;
};
