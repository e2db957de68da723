#include "ui/match_log_writer.h"

#include "core/file_names.h"
#include "core/system_reason.h"
#include "records/match_log.h"

#include <QCoreApplication>
#include <QDateTime>

namespace griglione {

void MatchLogWriter::matchEnded(const GameState& state, const std::array<bool, 4>& levelChecked,
                                const std::string& boardCode) {
    const std::string now =
        QDateTime::currentDateTime().toString("yyyy-MM-dd HH:mm:ss").toStdString();
    const std::filesystem::path file = resolveFileName(m_folder, kMatchLogFileName);
    std::error_code why;
    if (appendMatch(file, matchEntry(state, levelChecked, boardCode, now), &why) || m_reported)
        return;
    m_reported = true;
    const auto where = std::filesystem::absolute(file).lexically_normal();
    m_alerts.avviso(QCoreApplication::translate(
                        "MatchLogWriter",
                        "Errore 0006: impossibile scrivere il registro delle partite %1 nella "
                        "posizione: %2 (%3). Questa partita non entra nelle statistiche; l'avviso "
                        "non si ripete fino alla prossima partenza del gioco.")
                        .arg(QString::fromStdString(where.filename().string()),
                             QString::fromStdString(where.parent_path().string()),
                             QString::fromStdString(systemReason(why)))
                        .toStdString());
}

} // namespace griglione
