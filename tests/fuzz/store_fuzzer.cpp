#include "fuzz.h"
#include "state/json_codec.h"
#include "state/stored_value.h"

/// Whatever the reader takes must come back the same once it was written.
void tryInput(const QByteArray& input) {
    const std::optional<StoreContents> contents = decodeStore(input);
    if (!contents) {
        return;
    }
    QByteArray written;
    encodeStore(*contents, [&written](const char* bytes, std::size_t count) {
        written.append(bytes, static_cast<qsizetype>(count));
        return true;
    });
    const std::optional<StoreContents> again = decodeStore(written);
    demand(again && sameStoredValue(*again, *contents));
}
