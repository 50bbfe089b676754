#pragma once

#include <QStringList>

#include "platform/file_request.h"
#include "state/item_list.h"

class Hiding;

/// What became of a request.
struct RequestOutcome {
    QStringList sentences;   ///< on what was not done, translated; none when all went well
    qsizetype current = -1;  ///< the row of the last path that was dealt with; -1 for none
};

/// Carries out on `list` what was asked for from outside the window. Add and Hide append the paths
/// that are not listed, marked visible; Hide, Show and ShowAll then run one command line for each
/// path and mark all its records. What cannot be done (a path that does not exist, or is not listed
/// when it is to be shown) is skipped and told in the outcome. Stops when the program is asked to
/// end; when no command can be started at all, nothing is changed. Blocks. The caller makes sure
/// that the list may be changed, stores it afterwards and calls `request.answer`.
RequestOutcome carryOut(const FileRequest& request, ItemList& list, Hiding& hiding);

/// The translated sentence for a request that is refused because the list is locked.
QString lockedSentence();
