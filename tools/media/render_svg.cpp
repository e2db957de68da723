// Renders an SVG picture to a PNG of the given size with Qt SVG, the renderer the game draws
// with, so the raster pictures and icons made from a source look as the game shows it.
//   render_svg IN.svg OUT.png WIDTH [HEIGHT]
#include <QGuiApplication>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char* argv[]) {
    if (argc < 4) {
        std::fprintf(stderr, "usage: render_svg IN.svg OUT.png WIDTH [HEIGHT]\n");
        return 2;
    }
    // No window is opened; the platform only has to exist for the painter.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QSvgRenderer source(QString::fromLocal8Bit(argv[1]));
    const int width = QByteArray(argv[3]).toInt();
    const int height = argc > 4 ? QByteArray(argv[4]).toInt() : width;
    if (!source.isValid() || width <= 0 || height <= 0) {
        std::fprintf(stderr, "render_svg: cannot draw %s at %dx%d\n", argv[1], width, height);
        return 1;
    }
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    source.render(&painter);
    painter.end();
    QImageWriter writer(QString::fromLocal8Bit(argv[2]), "png");
    if (!writer.write(image.convertToFormat(QImage::Format_ARGB32))) {
        std::fprintf(stderr, "render_svg: %s\n", qPrintable(writer.errorString()));
        return 1;
    }
    return 0;
}
