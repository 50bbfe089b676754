#include "xfconf.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <utility>
#include <vector>

namespace {

constexpr const char* daemonName = "org.xfce.Xfconf";

}  // namespace

Xfconf::Xfconf(const Bus* session, std::string channel, std::string property)
    : session_(session), channel_(std::move(channel)), property_(std::move(property)) {}

VariantPointer Xfconf::call(const char* method, GVariant* arguments, const char* answerType) const {
    return session_->call(daemonName, "/org/xfce/Xfconf", daemonName, method, arguments,
                          answerType);
}

std::optional<bool> Xfconf::value() const {
    if (session_ == nullptr) {
        return valueInFiles();
    }
    const auto key = "/" + property_;
    const auto known =
        call("PropertyExists", g_variant_new("(ss)", channel_.c_str(), key.c_str()), "(b)");
    if (!known) {
        return valueInFiles();
    }
    const auto answer =
        call("GetProperty", g_variant_new("(ss)", channel_.c_str(), key.c_str()), "(v)");
    if (!answer) {
        return {};
    }
    const VariantPointer boxed(g_variant_get_child_value(answer.get(), 0));
    const VariantPointer value(g_variant_get_variant(boxed.get()));
    return g_variant_is_of_type(value.get(), G_VARIANT_TYPE_BOOLEAN) &&
           g_variant_get_boolean(value.get()) != FALSE;
}

std::optional<bool> Xfconf::valueInFiles() const {
    std::vector<std::filesystem::path> folders{g_get_user_config_dir()};
    for (const auto* const* folder = g_get_system_config_dirs(); *folder != nullptr; ++folder) {
        folders.emplace_back(*folder);
    }
    for (const auto& folder : folders) {
        std::ifstream stream(folder / "xfce4/xfconf/xfce-perchannel-xml" / (channel_ + ".xml"));
        std::ostringstream read;
        read << stream.rdbuf();  // which does not throw when there is a folder of that name
        const std::string content = read.str();
        // Written by the daemon alone, always in this one form.
        const auto start = content.find("<property name=\"" + property_ + "\" type=\"bool\"");
        if (start != std::string::npos) {
            const auto element = content.substr(start, content.find('>', start) - start);
            return element.find("value=\"true\"") != std::string::npos;
        }
    }
    return {};
}

bool Xfconf::store(std::optional<bool> value) const {
    if (session_ == nullptr ||
        !session_->callBus("StartServiceByName", g_variant_new("(su)", daemonName, 0), "(u)")) {
        return false;
    }
    const auto key = "/" + property_;
    const auto answer =
        value ? call("SetProperty",
                     g_variant_new("(ssv)", channel_.c_str(), key.c_str(),
                                   g_variant_new_boolean(*value ? TRUE : FALSE)),
                     "()")
              : call("ResetProperty", g_variant_new("(ssb)", channel_.c_str(), key.c_str(), FALSE),
                     "()");
    return answer != nullptr;
}
