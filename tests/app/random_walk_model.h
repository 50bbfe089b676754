#pragma once

#include <algorithm>

#include <QDebug>
#include <QRegularExpression>
#include <QStringList>

inline const QString shown = ":\"1\"";
inline const QString hidden = ":\"0\"";

// A row is a name and a mark, as Sandbox::describe() writes them.
inline QString nameOf(const QString& row) {
    return row.section(':', 0, 0);
}
inline bool isShown(const QString& row) {
    return !row.endsWith(hidden);
}
inline qsizetype indexOf(const QStringList& rows, const QString& name) {
    return rows.indexOf(QRegularExpression(name + ":.*"));
}

/// The facts in one line, for comparing and for reading.
template <typename... Facts>
QString written(const Facts&... facts) {
    QString text;
    (QDebug(&text) << ... << facts);
    return text;
}

/// What outlives a window.
struct Kept {
    QStringList stored, missing, files, commands;
    QString password, require;
    bool showsAtStart = false, hidesAtClose = false;
    qsizetype failures = 0, objects = 0;
};

/// What is asked of the window, in plain data.
struct Model : Kept {
    explicit Model(const Kept& kept = {}) : Kept(kept) {}

    QStringList list;
    QString pane = "none";
    bool verified = false, canDrop = false, on = true, canSwitch = false, canOpen = false;
    bool ascends[2] = {};  // the two buttons of the header
    int current = 0, selected = -1, sorted = -1;

    int last() const { return static_cast<int>(list.size()) - 1; }
    qsizetype find(const QString& name) const { return indexOf(list, name); }
    bool canEdit() const { return require != "1" || verified; }
    bool hasRow() const { return current >= 0 && current <= last(); }
    bool canRemove() const { return hasRow() && isShown(list[current]); }
    void report() {
        if (hasRow()) {
            pane = nameOf(list[current]);
            on = canOpen = isShown(list[current]);
            canSwitch = true;
        }
    }
    void load() {
        list = stored;
        current = sorted = 0;
        report();
    }
    void start() {
        for (auto row = stored.rbegin(); showsAtStart && row != stored.rend(); ++row) {
            *row = nameOf(*row) + shown;
            commands << "chflags|nohidden|" + nameOf(*row);
        }
        QStringList gone = stored;
        gone.removeIf([this](const QString& row) { return files.contains(nameOf(row)); });
        stored.removeIf([this](const QString& row) { return !files.contains(nameOf(row)); });
        missing.removeIf(
            [all = stored + gone](const QString& row) { return indexOf(all, nameOf(row)) >= 0; });
        missing += gone;
        if (canDrop = canEdit(); canDrop) {
            load();
        }
    }
    void close() {
        for (auto row = stored.begin(); hidesAtClose && row != stored.end(); ++row) {
            *row = nameOf(*row) + hidden;
            commands << "chflags|hidden|" + nameOf(*row).replace(' ', '|');
        }
    }
    void press() {
        commands << "defaults|read|com.apple.finder|AppleShowAllFiles";
        if (!list.isEmpty()) {
            on = !on;
            commands << (on ? "chflags|nohidden|" : "chflags|hidden|") + nameOf(list[current]);
            list[current] = nameOf(list[current]) + (on ? shown : hidden);
            stored = list;
            report();
        }
    }
    void click(int row) {
        const bool deselects = row > last() && (selected >= 0 || current > 0);
        if (deselects || (row <= last() && (row != selected || row != current))) {
            selected = deselects ? -1 : row;
            current = deselects ? 0 : row;
            report();
        }
    }
    void removeCurrent() {
        if (hasRow()) {
            list.removeAt(current);
            report();
            stored = list;
        }
        canOpen = canOpen && !list.isEmpty();
    }
    void remove(int row) {
        list = list.mid(0, row) + list.mid(row + 1);
        current = hasRow() ? current : last();
        if (list.isEmpty()) {
            pane = "none";
        } else if (current == row) {
            report();
        }
        stored = list;
    }
    void add(const QStringList& added) {
        list += QStringList(added).replaceInStrings(QRegularExpression("$"), ":1");
        current = last();
        stored = list;
        report();
    }
    void drop(const QStringList& dropped) {
        for (const QString& name : canDrop ? dropped : QStringList()) {
            const qsizetype match = find(name);
            if (match >= 0 && match < last()) {
                list.removeAll(QString(list[match]));  // and the walk over the list fails
                failures = 1;
                return;
            }
            list = list.mid(0, match) << name + shown;
        }
        if (canDrop && !dropped.isEmpty()) {
            stored = list;
            current = std::max(selected, 0);
            report();
        }
    }
    void sort(int by) {
        ascends[by] ^= sorted < 0 || by == sorted;
        sorted = by;
        std::stable_sort(list.begin(), list.end(), [&](const QString& one, const QString& other) {
            return ascends[by] ? nameOf(one) < nameOf(other) : nameOf(other) < nameOf(one);
        });
    }
    void answer(bool setsPassword, const QString& typed, bool save) {
        if (setsPassword && save) {
            password = typed.isEmpty() ? password : typed;
        } else if (!typed.isEmpty() && typed == password) {
            load();
        }
        verified = canDrop = save && !typed.isEmpty() && typed == password;
        require = verified ? "1" : require;
    }
    QString facts() const {
        QString rows;
        for (const QString& row : list) {
            rows += nameOf(row) + (isShown(row) ? ", Visible; " : ", Hidden; ");
        }
        return written(rows, stored.join(' '), missing.join(' '), list.isEmpty() ? 0 : current,
                       selected, "switch", on, on || !canSwitch, "can", canSwitch, canOpen,
                       canRemove(), canEdit(), canDrop, pane, require == "1", password + require,
                       commands, failures, "waiting", 0, 0, "objects", objects);
    }
};
