// Draws the application icon in the sizes that desktops keep as pictures:
//   render_icon SVG FOLDER SIZE...    writes FOLDER/SIZE.png for each size

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

namespace {

bool renderIcon(QSvgRenderer& drawing, const QString& path, int size) {
    QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawing.render(&painter);
    painter.end();
    return picture.save(path);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        std::fputs("usage: render_icon SVG FOLDER SIZE...\n", stderr);
        return 2;
    }
    QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
    const QDir folder(QString::fromLocal8Bit(argv[2]));
    if (!drawing.isValid() || !folder.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "render_icon: cannot read %s or make %s\n", argv[1], argv[2]);
        return 1;
    }
    for (int i = 3; i < argc; ++i) {
        const QString size = QString::fromLocal8Bit(argv[i]);
        const QString path = folder.filePath(size + QStringLiteral(".png"));
        if (size.toInt() <= 0 || !renderIcon(drawing, path, size.toInt())) {
            std::fprintf(stderr, "render_icon: cannot write %s\n", qPrintable(path));
            return 1;
        }
    }
    return 0;
}
