// The Italian pages of the records service, in one style, and the world table as JSON.
#include "server/pages.h"

#include "server/escape.h"

#include <algorithm>

namespace griglione {
namespace {

constexpr std::string_view kStyle = R"(<style>
:root { --verde: #004000; --giallo: #ffff80; --inchiostro: #1d2119; --bordo: #c9d6c2; }
* { box-sizing: border-box; }
body { margin: 0; background: #f4f6f1; color: var(--inchiostro);
  font: 17px/1.5 "Segoe UI", Tahoma, "DejaVu Sans", Verdana, sans-serif; }
header { background: var(--verde); color: #fff; padding: 1.2rem 1rem; text-align: center; }
header h1 { margin: 0; font-size: 2rem; color: var(--giallo); }
header p { margin: 0.3rem 0 0; }
main { max-width: 50rem; margin: 0 auto; padding: 0 1rem 2rem; }
a { color: #0b5d0b; }
nav p { margin: 0.5rem 0; }
nav a, nav strong { display: inline-block; padding: 0.15rem 0.45rem; margin: 0.1rem 0; }
nav strong { background: var(--verde); color: var(--giallo); border-radius: 0.3rem; }
table { width: 100%; border-collapse: collapse; margin: 1rem 0; background: #fff; }
th, td { padding: 0.35rem 0.5rem; border-bottom: 1px solid var(--bordo); text-align: left;
  vertical-align: top; overflow-wrap: anywhere; }
th { background: #e8f1e4; overflow-wrap: normal; white-space: nowrap; }
td.n { text-align: right; white-space: nowrap; font-variant-numeric: tabular-nums; }
tr.tuo td { background: #fff6b0; font-weight: bold; }
.avviso { border-left: 0.35rem solid var(--verde); background: #fff; padding: 0.6rem 1rem; }
.errore { border-left-color: #a00000; }
@media (max-width: 560px) {
  body { font-size: 15px; }
  header h1 { font-size: 1.5rem; }
  th, td { padding: 0.3rem 0.25rem; }
  .largo { display: none; }
}
</style>)";

constexpr int kLengths[] = {60, 90, 120, 300};

std::string frame(std::string_view title, std::string_view body) {
    std::string page = "<!DOCTYPE html>\n<html lang=\"it\">\n<head>\n<meta charset=\"utf-8\">\n"
                       "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
                       "<title>";
    page += htmlEscape(title);
    page += " – Il Griglione</title>\n";
    page += kStyle;
    page += "\n</head>\n<body>\n<header><h1>Il Griglione</h1><p>";
    page += htmlEscape(title);
    page += "</p></header>\n<main>\n";
    page += body;
    page += "<p><a href=\"/records/\">Tabella mondiale</a> · <a href=\"/\">Home page</a> · "
            "<a href=\"/GRIGLIONE.htm\">Guida al gioco</a></p>\n</main>\n</body>\n</html>\n";
    return page;
}

// The game sends the blanks of a note (and " %$&!=") as "_": they are shown as blanks.
std::string shownNote(std::string note) {
    std::replace(note.begin(), note.end(), '_', ' ');
    return note;
}

std::string tableLink(int lingua, int tempo) {
    return "/records/?Language=" + std::to_string(lingua) + "&amp;Tempo=" + std::to_string(tempo);
}

std::string rowsTable(const std::vector<TableRow>& rows, std::int64_t highlighted) {
    std::string html = "<table>\n<thead><tr><th>Posto</th><th>Giocatore</th><th>Punti</th>"
                       "<th>Note</th><th class=\"largo\">Data</th></tr></thead>\n<tbody>\n";
    for (const TableRow& row : rows) {
        html += row.id == highlighted ? "<tr class=\"tuo\">" : "<tr>";
        html += "<td class=\"n\">" + std::to_string(row.posto) + "</td><td>" +
                htmlEscape(row.nome) + "</td><td class=\"n\">" + groupedNumber(row.punti) +
                "</td><td>" + htmlEscape(shownNote(row.note)) + "</td><td class=\"largo n\">" +
                htmlEscape(row.data) + " " + htmlEscape(row.ora) + "</td></tr>\n";
    }
    return html + "</tbody>\n</table>\n";
}

std::string tableTitle(int lingua, int tempo) {
    return "dizionario " + std::string(languageName(lingua)) + ", partite di " +
           std::to_string(tempo) + " secondi";
}

} // namespace

std::string_view languageName(int lingua) {
    constexpr std::string_view kNames[] = {"italiano", "inglese", "latino"};
    return lingua >= 1 && lingua <= 3 ? kNames[lingua - 1] : "";
}

std::string confirmationPage(const WorldRecord& record, bool nuovo, int posto,
                             const std::vector<TableRow>& intorno, std::int64_t id) {
    std::string body = "<div class=\"avviso\" role=\"status\"><p><strong>";
    body += nuovo ? "Il tuo record è registrato nella tabella mondiale."
                  : "Questo record era già registrato: non è stato aggiunto una seconda volta.";
    body += "</strong></p><p>" + htmlEscape(record.nome) + ", " + groupedNumber(record.punti) +
            " punti";
    // No place when the table could not be read back just now: the record is stored all the same.
    if (posto > 0)
        body += ": " + std::to_string(posto) + "° posto nella tabella del " +
                tableTitle(record.lingua, record.tempo);
    body += ".</p></div>\n";
    if (!intorno.empty()) body += "<h2>Il tuo posto in classifica</h2>\n" + rowsTable(intorno, id);
    body += "<p><a href=\"" + tableLink(record.lingua, record.tempo) +
            "\">I migliori 50 di questa tabella</a></p>\n";
    return frame(nuovo ? "Record registrato" : "Record già registrato", body);
}

std::string tablePage(int lingua, int tempo, const std::vector<TableRow>& rows) {
    std::string body = "<nav aria-label=\"Tabelle\">\n<p>Dizionario:";
    for (int l = 1; l <= 3; ++l) {
        const std::string name(languageName(l));
        body += l == lingua ? " <strong aria-current=\"page\">" + name + "</strong>"
                            : " <a href=\"" + tableLink(l, tempo) + "\">" + name + "</a>";
    }
    body += "</p>\n<p>Durata:";
    for (const int t : kLengths) {
        const std::string name = std::to_string(t) + " s";
        body += t == tempo ? " <strong aria-current=\"page\">" + name + "</strong>"
                           : " <a href=\"" + tableLink(lingua, t) + "\">" + name + "</a>";
    }
    body += "</p>\n</nav>\n<h2>I migliori 50: " + tableTitle(lingua, tempo) + "</h2>\n";
    body += rows.empty() ? "<p>Nessun record ancora: il primo posto è libero.</p>\n"
                         : rowsTable(rows, 0);
    body += "<p><a href=\"" + tableLink(lingua, tempo) +
            "&amp;format=json\">Gli stessi dati in "
            "JSON</a></p>\n";
    return frame("Tabella mondiale dei record", body);
}

std::string tableJson(int lingua, int tempo, const std::vector<TableRow>& rows) {
    std::string json = "{\"lingua\":" + std::to_string(lingua) +
                       ",\"tempo\":" + std::to_string(tempo) + ",\"record\":[";
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const TableRow& row = rows[i];
        json += (i ? ",{" : "{") + std::string("\"posto\":") + std::to_string(row.posto) +
                ",\"nome\":" + jsonString(row.nome) + ",\"punti\":" + std::to_string(row.punti) +
                ",\"note\":" + jsonString(shownNote(row.note)) +
                ",\"data\":" + jsonString(row.data) + ",\"ora\":" + jsonString(row.ora) + "}";
    }
    return json + "]}\n";
}

std::string homePage() {
    return frame(
        "Il gioco di parole sulla griglia di dadi",
        "<p>Il Griglione è un gioco di parole per una persona, con l'interfaccia in italiano: "
        "su una griglia di 5 × 5 dadi con lettere si compongono parole passando da un dado a "
        "uno vicino, anche in diagonale, prima che scada il tempo. Il computer gioca la stessa "
        "griglia nello stesso momento, a una di quattro velocità. Una parola di L lettere vale "
        "L × L × 20 punti; i dizionari sono italiano, inglese e latino.</p>\n"
        "<h2>Come si gioca</h2>\n<p>La <a href=\"/GRIGLIONE.htm\">guida al gioco</a> spiega "
        "partita, parole, punteggi, avversari e record.</p>\n"
        "<h2>La tabella mondiale</h2>\n<p>Chi arriva al primo o al secondo posto nella propria "
        "tabella dei record può registrare il punteggio qui, con il link \"Registra record in "
        "Internet\" della finestra dei record. Ecco la <a href=\"/records/\">tabella "
        "mondiale</a>.</p>\n"
        "<h2>Come installarlo</h2>\n<p>Su Debian e sistemi simili: dal sorgente, "
        "<code>scripts/play</code> installa ciò che manca, compila e avvia il gioco; "
        "<code>scripts/package</code> prepara il pacchetto <code>griglione</code>, da installare "
        "con <code>sudo apt install ./build-package/griglione_*.deb</code>. Il gioco installato "
        "si trova nel menu delle applicazioni, tra i giochi.</p>\n");
}

std::string errorPage(std::string_view title, std::string_view text) {
    return frame(title, "<div class=\"avviso errore\" role=\"alert\"><p>" + htmlEscape(text) +
                            "</p></div>\n");
}

std::string framedPage(std::string_view title, std::string_view body) {
    return frame(title, body);
}

} // namespace griglione
