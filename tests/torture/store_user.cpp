// Opens a store as the program does, changes it and saves, and says what it saw and was told:
// store_user FILE [GENERATION ...]. List, password and missing items belong to one generation.

#include <cstdio>

#include <QCoreApplication>

#include "../state/lists.h"
#include "state/preference_keys.h"
#include "state/store_file.h"
#include "state/user_defaults.h"

namespace {

/// Was it saved, the generation at hand, the one in the file, what the user is told.
void say(const UserDefaults& defaults, const QString& file, bool saved) {
    QString name = defaults.objectForKey(passwordKey).toString();
    const QVariantList missing = defaults.objectForKey(missingItemsKey).toList();
    const int count = name.isEmpty() ? 0 : 1000;
    if (defaults.itemList().value_or(ItemList()) != listOf(count, name) ||
        ItemList::fromVariantList(missing) != listOf(count / 100, name)) {
        name = "torn";
    }
    const StoreReading reading = saved ? readStore(file) : StoreReading();
    const bool damaged = reading.state == StoreReading::State::Damaged;
    const QString stored =
        damaged ? "damaged" : reading.contents.value(passwordKey, "unread").toString();
    std::printf("%d\t%s\t%s\t%s\n", saved, qPrintable(name), qPrintable(stored),
                qPrintable(defaults.problem()));
}

}  // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication app(argc, argv);
    UserDefaults defaults(argv[1]);
    say(defaults, argv[1], false);
    for (int i = 2; i < argc; ++i) {
        defaults.readAgain();
        defaults.setItemList(listOf(1000, argv[i]));
        defaults.setObject(QString(argv[i]), passwordKey);
        defaults.setObject(listOf(10, argv[i]).toVariantList(), missingItemsKey);
        say(defaults, argv[1], defaults.synchronize() && defaults.isRead());
    }
}
