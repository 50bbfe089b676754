#pragma once

class DragDropTableView;

/// Gives the list its accessible side: the list "Items" with one child a row, which reads as its
/// title, a comma and its status, can be selected, and offers the actions of the hover buttons
/// under the same rules. Call once, before the first window.
void installAccessibleItems();

/// Tells assistive technology that the rows may read differently. Cheap while none is connected.
void updateAccessibleItems(DragDropTableView* table);
