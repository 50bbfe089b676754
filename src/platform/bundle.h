#pragma once

#include <QIcon>
#include <QString>

/// What comes with the program: texts by key and table, pictures and documents by name.
class Bundle {
public:
    /// Loads the English tables and over them those of the user's language, so that a text
    /// missing there still reads as English. Call once the application object exists.
    static void loadTranslations();

    /// The text for `key` in `table`; the key itself when the table has no entry.
    static QString localizedString(const QString& key, const QString& table);
    /// The picture of that name; a null icon when there is none.
    static QIcon imageNamed(const QString& name);
    /// Path of a resource to open, such as ("Acknowledgments", "html"); null when there is none.
    static QString pathForResource(const QString& name, const QString& type);
};
