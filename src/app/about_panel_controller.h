#pragma once

#include "platform/modal_window_controller.h"

/// The about window.
class AboutPanelController final : public ModalWindowController {
    Q_OBJECT

protected:
    std::unique_ptr<QWidget> loadWindow() override;
};
