#pragma once

#include <optional>
#include <string>

#include "bus.h"

/// A boolean at the top of a channel of Xfce's settings.
class Xfconf final {
public:
    /// Without a bus, what is stored is read from files and nothing can be stored.
    Xfconf(const Bus* session, std::string channel, std::string property);

    /// Asked of the settings daemon when that runs, since it keeps changes to itself for some
    /// seconds; otherwise read from its files. None when it was never stored.
    std::optional<bool> value() const;
    /// Stores it, or removes it when there is none. Starts the daemon when needed; false when it
    /// could not be done.
    bool store(std::optional<bool> value) const;

private:
    VariantPointer call(const char* method, GVariant* arguments, const char* answerType) const;
    std::optional<bool> valueInFiles() const;

    const Bus* session_;
    std::string channel_;
    std::string property_;
};
