#pragma once

struct MenuOutlets;
class QMainWindow;

/// Gives every menu and item its localised title.
void titleMenus(const MenuOutlets& menu);
/// Gives the items each system's own keys.
void setMenuKeys(const MenuOutlets& menu);
/// Connects the platform's standard commands: editing, window and quit. Quitting takes the same
/// path as the window's close button. `window` must outlive the items.
void connectStandardCommands(const MenuOutlets& menu, QMainWindow& window);
