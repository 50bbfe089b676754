#pragma once

#include <QString>

class QWidget;

/// Corrects the events that Qt sends to assistive technology: text typed into or removed from a
/// password field goes out as bullets, and a list's focus event is sent for the row that has the
/// focus. A handler that was installed before gets the corrected events, else the platform does.
/// Call once, before the first window.
void installAccessibleEvents();

/// Has assistive technology speak `text`, wherever the focus is. `region` shows it and is marked as
/// a live region (see accessible_labels.h). Does nothing for an empty text, or while no assistive
/// technology is connected.
void announce(QWidget* region, const QString& text);
