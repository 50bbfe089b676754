// Draws pictures ahead of time, so that the program need not on every start:
//   draw_pictures IMAGES FOLDER NAME:WIDTHxHEIGHT...
// writes FOLDER/NAME-WIDTHxHEIGHT.pixels of IMAGES/NAME.svg for each: the bare pixels as Qt paints
// them, 32 bits each with the alpha multiplied in, row by row.

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QStringList>
#include <QSvgRenderer>
#include <cstdio>

namespace {

bool draw(const QString& source, const QString& target, const QSize& size) {
    QSvgRenderer drawing(source);
    if (!drawing.isValid() || size.isEmpty()) {
        return false;
    }
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawing.render(&painter);
    painter.end();
    QFile file(target);
    return file.open(QIODevice::WriteOnly) &&
           file.write(reinterpret_cast<const char*>(picture.constBits()), picture.sizeInBytes()) ==
               picture.sizeInBytes();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        std::fputs("usage: draw_pictures IMAGES FOLDER NAME:WIDTHxHEIGHT...\n", stderr);
        return 2;
    }
    const QDir images(QString::fromLocal8Bit(argv[1]));
    const QDir folder(QString::fromLocal8Bit(argv[2]));
    folder.mkpath(QStringLiteral("."));
    for (int i = 3; i < argc; ++i) {
        const QString wanted = QString::fromLocal8Bit(argv[i]);
        const QString name = wanted.section(u':', 0, 0);
        const QString sides = wanted.section(u':', 1);
        const QSize size(sides.section(u'x', 0, 0).toInt(), sides.section(u'x', 1).toInt());
        if (!draw(images.filePath(name + QStringLiteral(".svg")),
                  folder.filePath(QStringLiteral("%1-%2.pixels").arg(name, sides)), size)) {
            std::fprintf(stderr, "draw_pictures: cannot draw %s\n", argv[i]);
            return 1;
        }
    }
    return 0;
}
