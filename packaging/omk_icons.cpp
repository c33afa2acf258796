// omk_icons DRAWING FOLDER SIZE ...: paints an SVG in each size and writes FOLDER/SIZExSIZE/apps/NAME.png with the name
// of the drawing, which is the layout of an icon theme. The build runs it.
#include <cstdio>

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

int main(int argc, char **argv)
{
    const QString name = QFile::decodeName(argc > 3 ? argv[1] : "");
    QSvgRenderer drawing(name);
    if (!drawing.isValid()) {
        std::fputs("Usage: omk_icons DRAWING FOLDER SIZE ...\n", stderr);
        return 2;
    }
    for (int i = 3; i < argc; ++i) {
        const int size = QByteArray(argv[i]).toInt();
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        drawing.render(&painter);
        painter.end();
        const QDir folder(QStringLiteral("%1/%2x%2/apps").arg(QFile::decodeName(argv[2])).arg(size));
        if (!folder.mkpath(QStringLiteral(".")) ||
            !image.save(folder.filePath(QFileInfo(name).baseName() + QStringLiteral(".png")))) {
            std::fprintf(stderr, "omk_icons: %s cannot be written.\n", qPrintable(folder.path()));
            return 1;
        }
    }
    return 0;
}
