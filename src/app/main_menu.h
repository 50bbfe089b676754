#pragma once

struct MenuOutlets;
class QMainWindow;
class QMenuBar;
class QWidget;

/// Gives the menus and items their localised titles. The menu "Velmora" has the program's name, and
/// PasswordGate titles the password command.
void titleMenus(const MenuOutlets& menu);
/// Gives the items their keys: the system's standard ones where it has them. Close has none, since
/// it does nothing on purpose.
void setMenuKeys(const MenuOutlets& menu);
/// Restricts the remove command's key to when the focus is in `list`.
void keepRemoveKeyIn(QWidget& list, const MenuOutlets& menu);
/// F10 opens the first menu of `bar` while `window` is active.
void openByKey(QMenuBar& bar, QMainWindow& window);
/// Connects the platform's standard commands: editing, window and quit. Quitting takes the same
/// path as the window's close button. `window` must outlive the items.
void connectStandardCommands(const MenuOutlets& menu, QMainWindow& window);
