#pragma once

#include <QString>

class QWidget;

/// Puts right what Qt tells assistive technology of changes: what is typed into a field that hides
/// it goes out as bullets, and the focus is told as that of the child which a control says has it.
/// A handler that was installed before gets what comes out, else the platform does. Call once,
/// before the first window.
void installAccessibleEvents();

/// Has assistive technology speak `text`, which `region` shows, wherever the focus is.
void announce(QWidget* region, const QString& text);
