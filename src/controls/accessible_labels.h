#pragma once

/// Gives what an interface file marks its accessible side: a widget with the property "decoration"
/// is ignored by assistive technology, and a label with the property "liveRegion" is a
/// notification. Call once, after the other factories and before the first window.
void installAccessibleLabels();
