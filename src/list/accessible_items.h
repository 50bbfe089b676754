#pragma once

class DragDropTableView;

/// Installs the accessible interface of the list: a list "Items" with one child for each row, which
/// reads as its title, a comma and its status, can be selected, and offers the actions of the hover
/// buttons under the same rules. Call once, before the first window.
void installAccessibleItems();

/// Tells assistive technology which rows read differently now, and whether there are more or
/// fewer. Cheap while none is connected.
void updateAccessibleItems(DragDropTableView* table);
/// Tells it that the current row has changed; `left` is the row that was current, -1 for none, and
/// may no longer exist.
void tellCurrentItem(DragDropTableView* table, int left);
