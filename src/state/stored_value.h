#pragma once

#include <QVariant>

/// The value in the types that the store keeps apart: QString, bool, qlonglong (qulonglong beyond
/// its range), double, QVariantList, QVariantMap, ItemList and, for null, std::nullptr_t. An
/// invalid QVariant when it has no such form.
QVariant storedForm(const QVariant& value);

/// Equality of two values in their stored form. Unlike with QVariant's own, 1 is not true.
bool sameStoredValue(const QVariant& left, const QVariant& right);
