#include <string_view>

#include <sys/mman.h>
#include <unistd.h>

#include <QByteArrayList>

#include "companions/chflags/hidden_lines.h"
#include "fuzz.h"

/// The first line of the input holds names with slashes between, the rest is a list of hidden ones.
/// Adding and taking out must make of it what a plain way of doing so does.
void tryInput(const QByteArray& input) {
    const qsizetype end = input.indexOf('\n');
    QByteArrayList names = input.left(end).split('/');
    names.removeAll(QByteArray());
    if (end < 0 || names.isEmpty() || input.contains('\0')) {
        return;
    }
    const QByteArray text = input.mid(end + 1);
    const std::vector<std::string_view> views(names.begin(), names.end());
    const int file = memfd_create("list", 0);
    demand(pwrite(file, text.constData(), text.size(), 0) == text.size());
    HiddenLines more;
    demand(more.read(file, names.size()) == 0);
    close(file);
    HiddenLines less = more;
    more.add(views);
    less.remove(views);

    QByteArrayList lines = text.split('\n');
    QByteArray all = lines.last().isEmpty() ? text : text + '\n';
    QByteArrayList rest = lines;
    rest.removeIf([&names](const QByteArray& line) { return names.contains(line); });
    QByteArray left = rest.size() < lines.size() ? rest.join('\n') : all;
    left += names.contains(lines.last()) && !rest.isEmpty() ? "\n" : "";
    for (const QByteArray& name : names) {
        all += lines.contains(name) ? QByteArray() : name + '\n';
        lines << name;
    }
    demand(more.text() == all.toStdString() && less.text() == left.toStdString());
}
