#pragma once

#include <functional>
#include <optional>

#include <QByteArray>
#include <QVariantMap>

/// The keys and values of a store, each in its stored form (stored_value.h): the array under the
/// item list's key as an ItemList, other arrays and dictionaries as QVariantList and QVariantMap.
using StoreContents = QVariantMap;

/// The contents of one JSON object in UTF-8; no value when the bytes are anything else, or nested
/// deeper than any store of this program is. Of equal keys in an object the last one counts.
std::optional<StoreContents> decodeStore(QByteArray json);

/// Takes a piece of the output; false stops it.
using ByteSink = std::function<bool(const char* bytes, std::size_t count)>;

/// Hands the contents to the sink piece by piece, as one JSON object. False when the sink stopped.
bool encodeStore(const StoreContents& contents, const ByteSink& sink);
