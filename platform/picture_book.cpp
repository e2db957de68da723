// Pictures by name, drawn sharp at any pixel ratio and kept per ratio.
#include "platform/picture_book.h"

#include "core/file_names.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

#include <cmath>

namespace griglione {

PictureBook::PictureBook(std::filesystem::path folder) : m_folder(std::move(folder)) {}

std::string PictureBook::vectorName(std::string_view name) {
    const auto dot = name.rfind('.');
    return std::string(name.substr(0, dot)) + ".svg";
}

QString PictureBook::file(std::string_view name) const {
    return QString::fromStdString(resolveFileName(m_folder, name).string());
}

QPixmap PictureBook::picture(std::string_view name, qreal ratio, QSize fit) const {
    const QString key = QStringLiteral("%1@%2:%3x%4")
                            .arg(QString::fromUtf8(name.data(), qsizetype(name.size())))
                            .arg(ratio)
                            .arg(fit.width())
                            .arg(fit.height());
    auto it = m_rendered.constFind(key);
    if (it == m_rendered.constEnd()) it = m_rendered.insert(key, render(name, ratio, fit));
    return *it;
}

QPixmap PictureBook::render(std::string_view name, qreal ratio, QSize fit) const {
    // At ratio 1 the shipped GIF is the vector source's own 1:1 rendering: decoding it costs far
    // less than drawing the source (the logo's lettering alone is a sixth of the start-up).
    if (ratio == 1) {
        QPixmap raster(file(name));
        if (!raster.isNull() &&
            (!fit.isValid() || raster.size().scaled(fit, Qt::KeepAspectRatio) == raster.size()))
            return raster;
    }
    QSvgRenderer source;
    const QString vector = file(vectorName(name));
    if (QFile::exists(vector) && source.load(vector)) {
        QSize size = source.defaultSize();
        if (fit.isValid()) size = size.scaled(fit, Qt::KeepAspectRatio);
        QPixmap pixmap(QSize(qRound(size.width() * ratio), qRound(size.height() * ratio)));
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        source.render(&painter);
        painter.end();
        pixmap.setDevicePixelRatio(ratio);
        return pixmap;
    }
    // A raster picture only: smoothed to the ratio rather than left to be pixel-doubled.
    QPixmap raster(file(name));
    if (raster.isNull()) return raster;
    QSize size = raster.size();
    if (fit.isValid()) size = size.scaled(fit, Qt::KeepAspectRatio);
    if (size == raster.size() && ratio == 1) return raster;
    QPixmap scaled = raster.scaled(size * ratio, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(ratio);
    return scaled;
}

QIcon PictureBook::icon(std::string_view name) const {
    const QString vector = file(vectorName(name));
    // Qt's SVG icon engine draws the source at each size and ratio asked for.
    if (QFile::exists(vector)) return QIcon(vector);
    return QIcon(file(name));
}

} // namespace griglione
