#pragma once

#include <QtGlobal>

class QVariant;

/// True for a number that is not 0, and for a string whose first character after leading blanks,
/// an optional sign and leading zeros is one of Y, y, T, t or a digit 1 to 9. False for
/// everything else, a missing value among it.
bool truthReading(const QVariant& value);

/// A number without its fraction; a string's leading decimal integer, 0 when there is none; 0 for
/// everything else. What is too large for the result gives its limit.
qlonglong integerReading(const QVariant& value);
