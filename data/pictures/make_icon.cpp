// make_icon SVG WIDTH HEIGHT FILE: draws the picture SVG with so many pixels into FILE, which is a PNG
// picture where its name ends so. Otherwise it has the rows from the top, for each pixel blue, green, red and
// opacity, a byte each, the colours multiplied with the opacity.
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdlib>
#include <iostream>

int main(int argc, char** argv) {
    const QSize size = argc == 5 ? QSize(std::atoi(argv[2]), std::atoi(argv[3])) : QSize();
    QSvgRenderer drawing;
    if (!size.isEmpty() && drawing.load(QString::fromLocal8Bit(argv[1]))) {
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        drawing.render(&painter);
        painter.end();
        const QString name = QString::fromLocal8Bit(argv[4]);
        if (name.endsWith(".png")) return image.save(name) ? EXIT_SUCCESS : EXIT_FAILURE;
        QFile file(name);
        const auto bytes = reinterpret_cast<const char*>(image.constBits());
        if (file.open(QIODevice::WriteOnly) &&
            file.write(bytes, image.sizeInBytes()) == image.sizeInBytes()) {
            return EXIT_SUCCESS;
        }
    }
    std::cerr << "make_icon: no icon was made\n";
    return EXIT_FAILURE;
}
