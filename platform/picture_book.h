// The pictures the windows draw, asked for by the names the game keeps ("zarMmgA1.gif") and
// drawn from their vector sources at the screen's pixel ratio, each rendering kept for reuse.
#pragma once

#include <QHash>
#include <QIcon>
#include <QPixmap>
#include <QSize>

#include <filesystem>
#include <string>
#include <string_view>

namespace griglione {

class PictureBook {
public:
    explicit PictureBook(std::filesystem::path folder);

    // The vector source of a picture name: the same name with ".svg" for its extension.
    static std::string vectorName(std::string_view name);

    // `name` for a screen of `ratio` device pixels to a logical pixel, at its own logical size or
    // fitted into `fit` keeping its proportions: drawn from the vector source when there is one,
    // else from the named raster file; null when neither can be read.
    QPixmap picture(std::string_view name, qreal ratio, QSize fit = QSize()) const;

    // The picture as a button's icon, drawn afresh for each size and ratio it is shown at.
    QIcon icon(std::string_view name) const;

    // The folder's file for `name`, as a path Qt takes.
    QString file(std::string_view name) const;

private:
    QPixmap render(std::string_view name, qreal ratio, QSize fit) const;

    std::filesystem::path m_folder;
    mutable QHash<QString, QPixmap> m_rendered;
};

} // namespace griglione
