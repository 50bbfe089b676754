#pragma once

#include <cstdint>
#include <cstdlib>

#include <QByteArray>

/// What a fuzzer does with one input; each is a program of its own.
void tryInput(const QByteArray& input);

inline void demand(bool holds) {
    if (!holds) {
        std::abort();
    }
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tryInput(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    return 0;
}
