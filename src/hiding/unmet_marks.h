#pragma once

class ItemList;

/// How many records of a list are marked otherwise than their items are on the disk.
struct UnmetMarks {
    int stillHidden = 0;   // marked visible
    int stillVisible = 0;  // marked hidden
};

/// Counts them. Looks at each folder once, so that a long list takes no longer than its records.
UnmetMarks countUnmetMarks(const ItemList& list);
