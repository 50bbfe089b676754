#pragma once

class ItemList;

/// How many records of a list are marked otherwise than their items are on the disk.
struct UnmetMarks {
    int stillHidden = 0;   ///< marked visible
    int stillVisible = 0;  ///< marked hidden
};

/// Counts them from the disk, reading what each folder hides only once, however many of its items
/// are listed. An item that does not exist counts by its name; see isItemHidden().
UnmetMarks countUnmetMarks(const ItemList& list);
