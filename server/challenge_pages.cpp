// The challenge pages in the service's frame: the board as a table of dice, its players, the
// days' boards and the answers to a submission; the same data as JSON.
#include "server/challenge_pages.h"

#include "board/day_board.h"
#include "records/challenge_words.h"
#include "server/escape.h"
#include "server/pages.h"

#include <ctime>

namespace griglione {
namespace {

// The board's own look: dice in four tints, as the game's faces, and large enough letters to
// read on a telephone.
constexpr std::string_view kBoardStyle = R"(<style>
table.tabellone { width: auto; margin: 1rem auto; border-collapse: separate; border-spacing: 0.3rem;
  background: var(--verde); border-radius: 0.6rem; padding: 0.3rem; }
table.tabellone caption { caption-side: bottom; padding-top: 0.4rem; font-size: 0.9rem; }
table.tabellone td { width: 3.6rem; height: 3.6rem; padding: 0; border: 1px solid #6f6244;
  border-radius: 0.5rem; text-align: center; vertical-align: middle; font-size: 2rem;
  font-weight: bold; color: #2a1808; background: #fbf5e2; }
table.tabellone td.f2 { background: #fcefb8; }
table.tabellone td.f3 { background: #f3e6c9; }
table.tabellone td.f4 { background: #fff9ea; }
p.codice code { font-size: 1.15rem; letter-spacing: 0.05em; }
a.gioca { display: inline-block; padding: 0.5rem 1rem; background: var(--verde);
  color: var(--giallo); border-radius: 0.4rem; font-weight: bold; text-decoration: none; }
details summary { cursor: pointer; }
th.quando, td.quando { white-space: normal; }
@media (max-width: 560px) {
  table.tabellone td { width: 3.2rem; height: 3.2rem; font-size: 1.7rem; }
}
</style>
)";

std::string languageAdjective(int language) {
    return std::string(languageName(language));
}

// The code in groups of four, for reading aloud.
std::string groupedCode(const std::string& code) {
    std::string out;
    for (std::size_t i = 0; i < code.size(); ++i) {
        if (i > 0 && i % 4 == 0) out += ' ';
        out += code[i];
    }
    return out;
}

std::string boardTitle(int language, const std::optional<CivilDate>& day) {
    return day ? "Tabellone del giorno " + longDate(*day) + ", " + languageAdjective(language)
               : "Sfida sul tabellone " + languageAdjective(language);
}

std::string boardTable(const SharedBoard& board) {
    std::string html = "<table class=\"tabellone\">\n<caption>Il tabellone: 5 righe di 5 "
                       "dadi</caption>\n<tbody>\n";
    for (int row = 0; row < 5; ++row) {
        html += "<tr>";
        for (int column = 0; column < 5; ++column) {
            const int n = row * 5 + column;
            html += "<td class=\"f" + std::to_string(board.faces[n]) + "\">";
            html += board.letters[n];
            html += "</td>";
        }
        html += "</tr>\n";
    }
    return html + "</tbody>\n</table>\n";
}

// A time of reception in UTC, as `format` writes it.
std::string utcText(std::int64_t seconds, const char* format) {
    const std::time_t time = static_cast<std::time_t>(seconds);
    std::tm parts{};
    gmtime_r(&time, &parts);
    char text[32];
    std::strftime(text, sizeof text, format, &parts);
    return text;
}

// "24-11-2026 08:15" for the page, "2026-11-24T08:15:00Z" for JSON.
std::string receivedText(std::int64_t seconds) {
    return utcText(seconds, "%d-%m-%Y %H:%M");
}

std::string receivedIso(std::int64_t seconds) {
    return utcText(seconds, "%Y-%m-%dT%H:%M:%SZ");
}

std::string wordsCell(const std::string& packed) {
    const std::vector<std::string> words = unpackWords(packed).value_or(std::vector<std::string>{});
    if (words.empty()) return "nessuna";
    std::string list;
    for (const std::string& word : words)
        list += (list.empty() ? "" : ", ") + word;
    return "<details><summary>" + std::to_string(words.size()) +
           (words.size() == 1 ? " parola" : " parole") + "</summary>" + list + "</details>";
}

std::string playersTable(const std::vector<ChallengeRow>& rows, const std::string& highlighted) {
    if (rows.empty()) return "<p>Nessuno ha ancora inviato un risultato su questo tabellone.</p>\n";
    std::string html =
        "<table>\n<thead><tr><th>Posto</th><th>Giocatore</th><th>Punti</th>"
        "<th>Parole</th><th class=\"largo\">Durata</th><th class=\"quando\">Ricevuto (UTC)</th>"
        "</tr></thead>\n<tbody>\n";
    for (const ChallengeRow& row : rows) {
        const bool mine = !highlighted.empty() && playerKey(row.nome) == highlighted;
        html += mine ? "<tr class=\"tuo\">" : "<tr>";
        html += "<td class=\"n\">" + std::to_string(row.posto) + "</td><td>" +
                htmlEscape(row.nome) + "</td><td class=\"n\">" + groupedNumber(row.punti) +
                "</td><td>" + wordsCell(row.parole) + "</td><td class=\"largo n\">" +
                std::to_string(row.tempo) + " s</td><td class=\"n quando\">" +
                receivedText(row.ricevuto) + "</td></tr>\n";
    }
    return html + "</tbody>\n</table>\n";
}

std::string boardSection(const SharedBoard& board, const std::string& codice) {
    return boardTable(board) + "<p class=\"codice\">Codice: <code>" + groupedCode(codice) +
           "</code></p>\n<p><a class=\"gioca\" href=\"griglione:" + codice +
           "\">Gioca questo tabellone nel Griglione</a></p>\n"
           "<p>Il link apre il gioco installato. Altrimenti, nel gioco: menu File, \"Gioca un "
           "tabellone…\", e il codice.</p>\n";
}

std::string challengeLink(const std::string& codice) {
    return "/sfide/" + codice;
}

std::string dayLink(const CivilDate& date, const CivilDate& today) {
    return date == today ? "/oggi/" : "/giorni/" + dateText(date);
}

} // namespace

std::string longDate(const CivilDate& date) {
    constexpr const char* kMonths[] = {"gennaio",   "febbraio", "marzo",    "aprile",
                                       "maggio",    "giugno",   "luglio",   "agosto",
                                       "settembre", "ottobre",  "novembre", "dicembre"};
    return std::to_string(date.day) + " " + kMonths[(date.month - 1) % 12] + " " +
           std::to_string(date.year);
}

std::string challengePage(const SharedBoard& board, const std::optional<CivilDate>& day,
                          const std::vector<ChallengeRow>& rows, const std::string& highlighted) {
    const std::string codice = encodeBoard(board);
    std::string body(kBoardStyle);
    body += "<h2>" + boardTitle(board.language, day) + "</h2>\n";
    if (day)
        body += "<p>Il tabellone del giorno si gioca in partite di 120 secondi, con la voce "
                "\"Tabellone del giorno\" del gioco. I risultati si inviano quel giorno, il giorno "
                "prima "
                "o il giorno dopo.</p>\n";
    body += boardSection(board, codice);
    body += "<h2>Chi l'ha giocato</h2>\n" + playersTable(rows, highlighted);
    body += "<p>Punti e parole sono controllati dal servizio sul tabellone e nel dizionario " +
            languageAdjective(board.language) + ".</p>\n";
    body += "<p><a href=\"" + challengeLink(codice) +
            "?format=json\">Gli stessi dati in JSON</a> · <a href=\"/oggi/\">Tabelloni del "
            "giorno</a></p>\n";
    return framedPage(boardTitle(board.language, day), body);
}

std::string challengeJson(const SharedBoard& board, const std::optional<CivilDate>& day,
                          const std::vector<ChallengeRow>& rows) {
    std::string letters, faces;
    for (int n = 0; n < kCells; ++n) {
        letters += board.letters[n];
        faces += static_cast<char>('0' + board.faces[n]);
    }
    std::string json =
        "{\"codice\":\"" + encodeBoard(board) + "\",\"lingua\":" + std::to_string(board.language) +
        ",\"giorno\":" + (day ? "\"" + dateText(*day) + "\"" : std::string("null")) +
        ",\"lettere\":\"" + letters + "\",\"facce\":\"" + faces + "\",\"giocatori\":[";
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const ChallengeRow& row = rows[i];
        json += (i ? ",{" : "{") + std::string("\"posto\":") + std::to_string(row.posto) +
                ",\"nome\":" + jsonString(row.nome) + ",\"punti\":" + std::to_string(row.punti) +
                ",\"tempo\":" + std::to_string(row.tempo) + ",\"parole\":[";
        const auto words = unpackWords(row.parole).value_or(std::vector<std::string>{});
        for (std::size_t w = 0; w < words.size(); ++w)
            json += (w ? ",\"" : "\"") + words[w] + "\"";
        json += "],\"ricevuto\":\"" + receivedIso(row.ricevuto) + "\"}";
    }
    return json + "]}\n";
}

std::string dayPage(const CivilDate& date, const CivilDate& today) {
    std::string body = "<h2>" + longDate(date) +
                       "</h2>\n<p>Lo stesso tabellone per tutti, uno "
                       "per lingua, in partite di 120 secondi. Nel gioco: la voce \"Tabellone del "
                       "giorno\".</p>\n<ul>\n";
    for (int language = 1; language <= 3; ++language) {
        const std::string codice = encodeBoard(dayBoard(date, language));
        body += "<li><a href=\"" + challengeLink(codice) + "\">Tabellone " +
                languageAdjective(language) + "</a>: <code>" + groupedCode(codice) +
                "</code></li>\n";
    }
    std::string links;
    const CivilDate before = dateFromDays(daysSinceEpoch(date) - 1);
    if (before.year >= DayBoards::kFirstYear)
        links += "<a href=\"" + dayLink(before, today) + "\">Giorno precedente</a>";
    if (date < today)
        links += std::string(links.empty() ? "" : " · ") + "<a href=\"" +
                 dayLink(dateFromDays(daysSinceEpoch(date) + 1), today) + "\">Giorno seguente</a>";
    body += "</ul>\n<nav aria-label=\"Giorni\"><p>" + links;
    body += "</p></nav>\n";
    return framedPage(date == today ? "Tabelloni di oggi" : "Tabelloni del " + longDate(date),
                      body);
}

std::string storedPage(const ChallengeEntry& entry, const ChallengeStored& stored,
                       const SharedBoard& board, const std::optional<CivilDate>& day,
                       const std::vector<ChallengeRow>& rows) {
    const std::string points = groupedNumber(entry.punti) + " punti";
    std::string message, title;
    switch (stored.esito) {
    case ChallengeOutcome::Nuovo:
        title = "Risultato registrato";
        message = "Il tuo risultato è registrato: " + htmlEscape(entry.nome) + ", " + points + ".";
        break;
    case ChallengeOutcome::Uguale:
        title = "Risultato già registrato";
        message = "Questo risultato era già registrato: non è stato aggiunto una seconda volta.";
        break;
    case ChallengeOutcome::Migliorato:
        title = "Risultato migliorato";
        message = "Il tuo risultato è migliorato: da " + groupedNumber(stored.puntiPrima) + " a " +
                  points + ".";
        break;
    case ChallengeOutcome::Conservato:
        title = "Risultato precedente conservato";
        message = "Il tuo risultato precedente, " + groupedNumber(stored.puntiPrima) +
                  " punti, vale almeno quanto questo (" + points + ") e resta in tabella.";
        break;
    }
    std::string body = "<div class=\"avviso\" role=\"status\"><p><strong>" + message +
                       "</strong></p><p>Le parole e i punti sono stati controllati dal "
                       "servizio.</p></div>\n";
    body += "<h2>La tabella: " + boardTitle(board.language, day) + "</h2>\n" +
            playersTable(rows, entry.giocatore);
    body += "<p><a href=\"" + challengeLink(entry.codice) +
            "\">Il tabellone e la sua "
            "tabella</a></p>\n";
    return framedPage(title, body);
}

std::string refusedWordsPage(const CheckedChallenge& checked) {
    const auto list = [](const std::vector<std::string>& words) {
        std::string html = "<ul>\n";
        for (const std::string& word : words)
            html += "<li>" + htmlEscape(word) + "</li>\n";
        return html + "</ul>\n";
    };
    std::string body = "<div class=\"avviso errore\" role=\"alert\"><p><strong>Il risultato non "
                       "è stato registrato: alcune parole non valgono.</strong></p></div>\n";
    if (!checked.offBoard.empty())
        body += "<p>Non si possono comporre su questo tabellone (dadi vicini, ognuno una volta "
                "sola):</p>\n" +
                list(checked.offBoard);
    if (!checked.unknown.empty())
        body += "<p>Non sono nel dizionario " + languageAdjective(checked.language) +
                " del gioco:</p>\n" + list(checked.unknown);
    body += "<p><a href=\"" + challengeLink(checked.codice) +
            "\">Il tabellone e la sua tabella</a></p>\n";
    return framedPage("Risultato non registrato", body);
}

} // namespace griglione
