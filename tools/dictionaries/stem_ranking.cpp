#include "tools/dictionaries/stem_ranking.h"

#include "tools/dictionaries/word_filter.h"

#include <algorithm>
#include <charconv>

namespace griglione {
namespace {

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (std::size_t start = 0;;) {
        const std::size_t end = text.find(separator, start);
        parts.push_back(text.substr(start, end - start));
        if (end == std::string_view::npos) return parts;
        start = end + 1;
    }
}

std::string_view withoutLineEnd(std::string_view line) {
    while (!line.empty() && (line.back() == '\r' || line.back() == ' '))
        line.remove_suffix(1);
    return line;
}

} // namespace

std::map<std::string, long> latinLemmaCounts(std::string_view lemmesFile) {
    std::map<std::string, long> counts;
    const auto add = [&counts](std::string_view utf8, std::string_view ending, long count) {
        // Homographs carry a number: "abdico2".
        while (!utf8.empty() && utf8.back() >= '0' && utf8.back() <= '9')
            utf8.remove_suffix(1);
        if (utf8.empty()) return;
        const auto form = foldedCapitals(utf8);
        if (!form) return;
        long& kept = counts[*form + std::string(ending)];
        kept = std::max(kept, count);
    };
    for (std::string_view line : split(lemmesFile, '\n')) {
        line = withoutLineEnd(line);
        if (line.empty() || line[0] == '!') continue;
        const auto fields = split(line, '|');
        if (fields.size() < 6) continue;
        long count = 0;
        const std::string_view last = fields.back();
        std::from_chars(last.data(), last.data() + last.size(), count);

        const auto head = split(fields[0], '=');
        add(head[0], "", count);
        if (head.size() > 1)
            for (std::string_view variant : split(head[1], ','))
                add(variant, "", count);
        for (const std::size_t radical : {std::size_t{2}, std::size_t{3}})
            for (std::string_view stem : split(fields[radical], ','))
                for (const char* ending : {"I", "UM", "IS"})
                    add(stem, ending, count);
    }
    return counts;
}

std::string schoolSpellingStems(std::string_view dic) {
    const auto lines = split(dic, '\n');
    std::string kept;
    char previous = '\0';
    for (std::size_t i = 1; i < lines.size(); ++i) {
        const std::string_view line = lines[i];
        if (withoutLineEnd(line).empty()) continue;
        const char first = line.empty() ? '\0' : static_cast<char>(line[0] | 0x20); // lower case
        if (first == 'a' && previous == 'z') break;
        if (first >= 'a' && first <= 'z') previous = first;
        kept += line;
        kept += '\n';
    }
    return std::to_string(std::count(kept.begin(), kept.end(), '\n')) + '\n' + kept;
}

} // namespace griglione
