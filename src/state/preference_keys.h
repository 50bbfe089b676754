#pragma once

#include <QLatin1StringView>
#include <QString>

/// The keys of the store that go through no localisation table. Settings are stored under them, so
/// their spelling must never change.
inline constexpr QLatin1StringView itemListKey{"fileListView_List"};
inline constexpr QLatin1StringView passwordKey{"password"};
inline constexpr QLatin1StringView requirePasswordKey{"requirePassword"};
/// Records that a start has taken out of the list because nothing was at their paths.
inline constexpr QLatin1StringView missingItemsKey{"missingItems"};

/// The stored password; null when none is stored (anything but a text is none), which is not the
/// same as empty.
QString storedPassword();
/// Whether the stored list is locked: a password is stored, and protection is on.
bool isProtected();

/// The four boolean preferences, all off when absent. Their keys go through a localisation table.
enum class Preference {
    MakeVisibleAtLaunch,
    MakeInvisibleOnQuit,
    OpenOnDoubleClick,
    AlternatingRowColors,
};

/// The table that resolves the preference keys wherever no other is named.
inline constexpr QLatin1StringView preferenceTable{"RDTwoWindowController"};

/// The name of the preference, before it is resolved.
QString preferenceName(Preference preference);

/// The key of the store: the text for the preference's name in the localisation table (the
/// translation context of that name), or the name itself when the table has no entry.
QString resolvedPreferenceKey(Preference preference, const QString& table = preferenceTable);

/// The truth reading of what the standard user defaults hold for the preference.
bool preference(Preference preference, const QString& table = preferenceTable);

/// Stores the preference as a boolean.
void setPreference(Preference preference, bool on);
