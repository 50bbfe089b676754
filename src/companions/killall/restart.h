#pragma once

#include "managers/bus.h"

/// For a PCManFM-Qt whose windows cannot be reached: ends it, turns off the setting that it wrote
/// at its end, starts it as it was started, and opens the folders again that its windows showed.
/// Does nothing and returns false when it is at work or has a window whose folder is not found.
bool restartPcmanfmQt(const Bus& session);
