#pragma once

/// Installs the accessible interface of widgets that an interface file marks: one with the property
/// "decoration" is ignored by assistive technology, and a label with the property "liveRegion" is a
/// notification. Call once, after the other factories, which it takes precedence over, and before
/// the first window.
void installAccessibleLabels();
