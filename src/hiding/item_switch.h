#pragma once

class DragDropView;
class Hiding;
class ItemCommands;
class RDSwitchButton;

/// Pressing the switch: hides or shows the current item of the list.
class ItemSwitch final {
public:
    /// All must outlive this object.
    ItemSwitch(DragDropView& list, ItemCommands& commands, Hiding& hiding)
        : list_(list), commands_(commands), hiding_(hiding) {}

    /// Does not ask the password gate: a list that was loaded before it was locked can be switched.
    void touchSwitch(RDSwitchButton* sender);

private:
    DragDropView& list_;
    ItemCommands& commands_;
    Hiding& hiding_;
};
