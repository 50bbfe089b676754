#pragma once

struct MenuOutlets;
class QMainWindow;
class QMenuBar;
class QWidget;

/// Gives every menu and item its localised title.
void titleMenus(const MenuOutlets& menu);
/// Gives the items each system's own keys.
void setMenuKeys(const MenuOutlets& menu);
/// The remove command's key counts only while the focus is in `list`.
void keepRemoveKeyIn(QWidget& list, const MenuOutlets& menu);
/// F10 opens the first menu of `bar` while `window` is active.
void openByKey(QMenuBar& bar, QMainWindow& window);
/// Connects the platform's standard commands: editing, window and quit. Quitting takes the same
/// path as the window's close button. `window` must outlive the items.
void connectStandardCommands(const MenuOutlets& menu, QMainWindow& window);
