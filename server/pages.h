// The service's pages (Italian, UTF-8) and the world table as JSON. Every player text is escaped
// here; the e-mail address is never written.
#pragma once

#include "server/world_record.h"

#include <string>
#include <string_view>
#include <vector>

namespace griglione {

// "Italiano", "Inglese" or "Latino".
std::string_view languageName(int lingua);

// The answer to a submission: stored (or already stored), its place and the rows around it.
std::string confirmationPage(const WorldRecord& record, bool nuovo, int posto,
                             const std::vector<TableRow>& intorno, std::int64_t id);

// The best of one language and match length, with links to the other tables.
std::string tablePage(int lingua, int tempo, const std::vector<TableRow>& rows);
std::string tableJson(int lingua, int tempo, const std::vector<TableRow>& rows);

// What the game is, its help page, how to install it.
std::string homePage();

std::string errorPage(std::string_view title, std::string_view text);

// Any page in the service's frame and style; `body` is HTML, escaped by the caller.
std::string framedPage(std::string_view title, std::string_view body);

} // namespace griglione
