#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "state/json_codec.h"
#include "state/stored_value.h"

/// Whatever the reader takes must come back the same once it was written.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray json(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const std::optional<StoreContents> contents = decodeStore(json);
    if (!contents) {
        return 0;
    }
    QByteArray written;
    encodeStore(*contents, [&written](const char* bytes, std::size_t count) {
        written.append(bytes, static_cast<qsizetype>(count));
        return true;
    });
    const std::optional<StoreContents> again = decodeStore(written);
    if (!again || !sameStoredValue(*again, *contents)) {
        std::abort();
    }
    return 0;
}
