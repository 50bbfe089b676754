#include "accessible.h"

#include <algorithm>
#include <deque>
#include <iterator>
#include <utility>

namespace {

constexpr const char* accessibleInterface = "org.a11y.atspi.Accessible";
constexpr const char* actionInterface = "org.a11y.atspi.Action";
// Numbers from the interface's own enumerations.
constexpr unsigned menuBarRole = 34;
constexpr unsigned scrollBarRole = 48;
constexpr unsigned splitPaneRole = 53;
constexpr unsigned toolBarRole = 63;
constexpr unsigned checkedState = 4;

}  // namespace

Accessible::Accessible(const Bus& bus, std::string service, std::string path)
    : bus_(&bus), service_(std::move(service)), path_(std::move(path)) {}

std::vector<Accessible> Accessible::windowsOf(const Bus* accessibility, const char* program) {
    std::vector<Accessible> windows;
    if (accessibility == nullptr) {
        return windows;
    }
    const Accessible desktop(*accessibility, "org.a11y.atspi.Registry",
                             "/org/a11y/atspi/accessible/root");
    for (const auto& application : desktop.children()) {
        if (g_ascii_strcasecmp(application.name().c_str(), program) == 0) {
            const auto own = application.children();
            windows.insert(windows.end(), own.begin(), own.end());
        }
    }
    return windows;
}

VariantPointer Accessible::call(const char* method, const char* answerType) const {
    return bus_->call(service_, path_, accessibleInterface, method, nullptr, answerType);
}

VariantPointer Accessible::callAction(const char* method, int action,
                                      const char* answerType) const {
    return bus_->call(service_, path_, actionInterface, method, g_variant_new("(i)", action),
                      answerType);
}

std::vector<Accessible> Accessible::children() const {
    std::vector<Accessible> found;
    if (const auto answer = call("GetChildren", "(a(so))")) {
        GVariantIter* iterator = nullptr;
        g_variant_get(answer.get(), "(a(so))", &iterator);
        const char* service = nullptr;
        const char* path = nullptr;
        while (g_variant_iter_loop(iterator, "(&s&o)", &service, &path)) {
            found.push_back(Accessible(*bus_, service, path));
        }
        g_variant_iter_free(iterator);
    }
    return found;
}

std::string Accessible::name() const {
    const auto value = bus_->property(service_, path_, accessibleInterface, "Name", "s");
    return value ? g_variant_get_string(value.get(), nullptr) : "";
}

unsigned Accessible::role() const {
    guint32 role = 0;
    if (const auto answer = call("GetRole", "(u)")) {
        g_variant_get(answer.get(), "(u)", &role);
    }
    return role;
}

bool Accessible::isChecked() const {
    guint32 first = 0;
    if (const auto answer = call("GetState", "(au)")) {
        const VariantPointer words(g_variant_get_child_value(answer.get(), 0));
        if (g_variant_n_children(words.get()) > 0) {
            g_variant_get_child(words.get(), 0, "u", &first);
        }
    }
    return ((first >> checkedState) & 1U) != 0;
}

void Accessible::activate() const {
    callAction("DoAction", 0, "(b)");
}

void Accessible::activate(std::string_view nameEnd) const {
    const auto answer =
        bus_->call(service_, path_, actionInterface, "GetActions", nullptr, "(a(sss))");
    if (!answer) {
        return;
    }
    const VariantPointer actions(g_variant_get_child_value(answer.get(), 0));
    const auto count = static_cast<int>(g_variant_n_children(actions.get()));
    for (int number = 0; number < count; ++number) {
        const char* name = nullptr;
        g_variant_get_child(actions.get(), number, "(&s&s&s)", &name, nullptr, nullptr);
        if (std::string_view(name).ends_with(nameEnd)) {
            callAction("DoAction", number, "(b)");
            return;
        }
    }
}

std::vector<Accessible> Accessible::menus() const {
    // The bar is near the top of the window; the walk must not reach a view with all its files.
    constexpr size_t enough = 60;
    std::deque<Accessible> queue{*this};
    for (size_t seen = 0; !queue.empty() && seen < enough; ++seen) {
        const auto next = queue.front();
        queue.pop_front();
        auto below = next.children();
        if (next.role() == menuBarRole) {
            return below;
        }
        if (below.size() <= enough) {
            queue.insert(queue.end(), below.begin(), below.end());
        }
    }
    return {};
}

std::optional<std::set<std::string>> Accessible::contentNames() const {
    constexpr size_t tooMany = 600;
    std::set<std::string> names;
    std::deque<Accessible> queue{*this};
    bool sidePanePassed = false;
    for (size_t seen = 0; !queue.empty(); ++seen) {
        const auto next = queue.front();
        queue.pop_front();
        const auto role = next.role();
        if (role == menuBarRole || role == toolBarRole || role == scrollBarRole) {
            continue;
        }
        const auto name = next.name();
        names.insert(name.substr(0, name.find('\n')));
        auto below = next.children();
        if (role == splitPaneRole && !sidePanePassed && below.size() > 1) {
            below.erase(below.begin());
            sidePanePassed = true;
        }
        if (seen + queue.size() + below.size() > tooMany) {
            return {};
        }
        queue.insert(queue.end(), below.begin(), below.end());
    }
    return names;
}

bool Accessible::hasKey(std::string_view gtkKey, std::string_view qtKey) const {
    const auto answer = callAction("GetKeyBinding", 0, "(s)");
    const char* text = "";
    if (answer) {
        g_variant_get(answer.get(), "(&s)", &text);
    }
    // GTK: the mnemonic, the way through the menus, the key, with semicolons between.
    const std::string_view keys = text;
    return keys == qtKey || keys.ends_with(std::string(";").append(gtkKey));
}

std::vector<Accessible> Accessible::commandsWithKey(std::string_view gtkKey,
                                                    std::string_view qtKey) const {
    std::vector<Accessible> found;
    for (const auto& menu : menus()) {
        auto commands = menu.children();
        if (commands.size() == 1) {  // Qt: the entry in the bar holds the menu, that the commands
            commands = commands.front().children();
        }
        std::copy_if(commands.begin(), commands.end(), std::back_inserter(found),
                     [&](const auto& command) { return command.hasKey(gtkKey, qtKey); });
    }
    return found;
}
