#pragma once

class DragDropTableView;

/// Gives the list its accessible side: the list "Items" with one child a row, which reads as its
/// title, a comma and its status, can be selected, and offers the actions of the hover buttons
/// under the same rules. Call once, before the first window.
void installAccessibleItems();

/// Tells assistive technology which rows read differently now, and whether there are more or
/// fewer. Cheap while none is connected.
void updateAccessibleItems(DragDropTableView* table);
/// Tells it that another row is the current one than `left`, which may be gone.
void tellCurrentItem(DragDropTableView* table, int left);
