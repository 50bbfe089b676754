#pragma once

#include <optional>
#include <string>
#include <vector>

#include "glib_pointer.h"

/// A message bus. Calls wait for their answer for a second at most and start no service.
class Bus final {
public:
    /// The session's bus; none when there is none at hand, and none is started then.
    static std::optional<Bus> session();
    /// The bus of the session's accessibility services, when those run.
    std::optional<Bus> accessibility() const;

    /// Takes over floating arguments. Null when the call failed or the service does not run.
    VariantPointer call(const std::string& service, const std::string& path,
                        const std::string& interface, const std::string& method,
                        GVariant* arguments = nullptr) const;
    /// The value of a property; null when it cannot be had.
    VariantPointer property(const std::string& service, const std::string& path,
                            const std::string& interface, const std::string& name) const;
    void emit(const std::string& path, const std::string& interface, const std::string& name,
              GVariant* arguments) const;
    /// The names that services have on the bus now.
    std::vector<std::string> names() const;
    /// The names of the objects right below an object.
    std::vector<std::string> childObjects(const std::string& service,
                                          const std::string& path) const;

private:
    explicit Bus(ObjectPointer<GDBusConnection> connection);

    ObjectPointer<GDBusConnection> connection_;
};
