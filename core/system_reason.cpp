#include "core/system_reason.h"

#include "core/player_text.h"

#include <cerrno>

namespace griglione {

std::string systemReason(std::error_code error) {
    if (error.category() == std::generic_category() || error.category() == std::system_category()) {
        switch (error.value()) {
        case EACCES:
        case EPERM:
            return playerText("SystemReason", "permesso negato");
        case ENOSPC:
            return playerText("SystemReason", "disco pieno");
        case EDQUOT:
            return playerText("SystemReason", "spazio a disposizione esaurito");
        case EROFS:
            return playerText("SystemReason", "disco protetto in scrittura");
        case EISDIR:
            return playerText("SystemReason", "al suo posto c'è una cartella");
        case ENOENT:
        case ENOTDIR:
            return playerText("SystemReason", "cartella inesistente");
        case EIO:
            return playerText("SystemReason", "errore di lettura o scrittura del disco");
        case ENAMETOOLONG:
            return playerText("SystemReason", "percorso troppo lungo");
        default:
            break;
        }
    }
    return error.message();
}

} // namespace griglione
