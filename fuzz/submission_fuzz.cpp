// Reads any bytes as the query of a record submission. An accepted record must keep every bound,
// come back the same when sent again the game's way, and add no markup to the pages that show it.
#include "core/ansi_text.h"
#include "server/escape.h"
#include "server/pages.h"
#include "server/query.h"
#include "server/submission.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

std::string encoded(const std::string& utf8) {
    static constexpr char kHex[] = "0123456789ABCDEF";
    std::string out;
    for (const char c : griglione::toAnsi(utf8)) {
        const auto b = static_cast<unsigned char>(c);
        out += '%';
        out += kHex[b >> 4];
        out += kHex[b & 15];
    }
    return out;
}

std::size_t marks(const std::string& page) {
    return static_cast<std::size_t>(std::count(page.begin(), page.end(), '<'));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace griglione;
    const std::string query(reinterpret_cast<const char*>(data), size);
    parseQuery(query);
    const Submission submission = readSubmission(query);
    if (!submission.record) {
        if (submission.errore.empty()) std::abort();
        return 0;
    }
    const WorldRecord& r = *submission.record;
    const std::string nome = toAnsi(r.nome);
    if (nome.empty() || nome.size() > kMaxNameBytes || nome.front() == ' ' ||
        toAnsi(r.note).size() > kMaxNoteBytes || r.punti < 0 || r.punti % 20 != 0 ||
        r.punti > maxPunti(r.tempo) || !validLanguage(r.lingua))
        std::abort();
    const std::string again = "Nome=" + encoded(r.nome) + "&programma=" + r.programma +
                              "&data=" + r.data + "&punti=" + std::to_string(r.punti) +
                              "&Tempo=" + std::to_string(r.tempo) + "&Note=" + encoded(r.note) +
                              "&E_MAIL=" + encoded(r.email) + "&ora=" + r.ora +
                              "&Language=" + std::to_string(r.lingua);
    if (readSubmission(again).record != r) std::abort();
    // The player's texts add no "<" of their own to any page, and the JSON holds none at all.
    const std::vector<TableRow> plain = {{1, 1, "", r.punti, "", r.data, r.ora}};
    const std::vector<TableRow> rows = {{1, 1, r.nome, r.punti, r.note, r.data, r.ora}};
    if (marks(tablePage(r.lingua, r.tempo, rows)) != marks(tablePage(r.lingua, r.tempo, plain)) ||
        marks(confirmationPage(r, true, 1, rows, 1)) !=
            marks(confirmationPage({}, true, 1, plain, 1)) ||
        marks(tableJson(r.lingua, r.tempo, rows)) != 0)
        std::abort();
    return 0;
}
