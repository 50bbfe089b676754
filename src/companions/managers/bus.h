#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "glib_pointer.h"

/// A message bus. Calls start no service, and wait for their answer for the time given.
class Bus final {
public:
    /// Whether the session seems to have a bus. To be asked before GLib connects: without a bus it
    /// would start one of its own and wait for it.
    static bool isAtHand();
    /// The session's bus; none when there is none at hand.
    static std::optional<Bus> session(std::chrono::milliseconds answerTime);
    /// The bus of the session's accessibility services, when those run.
    std::optional<Bus> accessibility() const;

    /// Calls a method and waits for its answer. Takes over floating arguments. Null when the call
    /// failed, the service does not run, or the answer is not of the type.
    VariantPointer call(const std::string& service, const std::string& path,
                        const std::string& interface, const std::string& method,
                        GVariant* arguments, const char* answerType) const;
    /// The value of a property; null when it cannot be had or is not of the type.
    VariantPointer property(const std::string& service, const std::string& path,
                            const std::string& interface, const std::string& name,
                            const char* type) const;
    /// Calls a method of the bus itself.
    VariantPointer callBus(const std::string& method, GVariant* arguments,
                           const char* answerType) const;
    /// Emits a signal to all who listen for it, and takes over floating arguments.
    void emit(const std::string& path, const std::string& interface, const std::string& name,
              GVariant* arguments) const;
    /// The names that services have on the bus now.
    std::vector<std::string> names() const;
    /// The names of the objects right below an object.
    std::vector<std::string> childObjects(const std::string& service,
                                          const std::string& path) const;

private:
    Bus(GDBusConnection* connection, std::chrono::milliseconds answerTime);

    GlibPointer<GDBusConnection> connection_;
    std::chrono::milliseconds answerTime_;
};
