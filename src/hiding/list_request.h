#pragma once

#include <QStringList>

#include "platform/file_request.h"
#include "state/item_list.h"

class Hiding;

/// What became of a request.
struct RequestOutcome {
    QStringList sentences;   // on what was not done, translated; none when all went well
    qsizetype current = -1;  // the row that the last file is in; -1 for none
};

/// Does on a list what was asked for from outside the window, and marks its records: adds what is
/// missing, visible, and hides or shows, with one command line for each path. Whoever calls it has
/// made sure that the list may be changed now, and stores it afterwards.
RequestOutcome carryOut(const FileRequest& request, ItemList& list, Hiding& hiding);

/// The sentence for a request on a list that is locked.
QString lockedSentence();
