#pragma once

class QString;

/// Shows one notification of the desktop's, under the program's name. Nothing where the desktop has
/// none.
void notifyDesktop(const QString& text);
