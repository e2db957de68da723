#include "platform/game_folder.h"

#include "core/file_names.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace griglione {

bool settleGameFolder(const QString& programFolder) {
    const QString playerFolder =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/griglione";
    // isWritable asks the system for this user's access, so a folder root owns under /usr is
    // read-only to everybody else; root itself is caught by the installed data folder instead.
    FileSearchOrder order = chooseFileSearchOrder(
        QDir(programFolder).absolutePath().toStdString(), QFileInfo(programFolder).isWritable(),
        GRIGLIONE_DATA_FROM_PROGRAM, QDir(playerFolder).absolutePath().toStdString());
    const QString working = QString::fromStdString(order.playerFolder.string());
    QDir().mkpath(working);
    const bool settled = QDir::setCurrent(working);
    // Without a folder of the player's own, stay in the program's: writes then fail and are
    // reported, rather than leave files wherever the game was started from.
    if (!settled) QDir::setCurrent(programFolder);
    setFileSearchOrder(std::move(order));
    return settled;
}

} // namespace griglione
