#pragma once

class QMainWindow;
namespace Ui {
class Main;
}

/// What the interface file cannot say of the main window's look: pictures, localised captions,
/// colours that are light on every desktop, and sizes that follow the user's font and language,
/// also when they change. No behaviour.
void applyLook(const Ui::Main& ui, QMainWindow& window);
