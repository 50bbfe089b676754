#pragma once

class QMainWindow;
namespace Ui {
class Main;
}

/// What the interface file cannot say of the main window's look: pictures, localised captions, the
/// light colours of pane and bar, and sizes that grow with the user's font. No behaviour.
void dressMainWindow(const Ui::Main& ui, QMainWindow& window);
