#pragma once

class UserDefaults;

/// The existence filter of the start: takes the records whose files are gone out of the stored list
/// and stores what is left; always, changed or not.
///
/// An item that was hidden on a disk which is not there now must not be forgotten for good, so
/// the records that go are kept under a key of their own (missingItemsKey), one for each path, the
/// latest, until a start finds their path in the list again.
void removeMissingItems(UserDefaults& defaults);
