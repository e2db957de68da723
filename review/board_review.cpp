#include "review/board_review.h"

#include <algorithm>
#include <cctype>
#include <set>
#include <unordered_map>

namespace griglione {
namespace {

std::string lower(std::string word) {
    for (char& c : word)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return word;
}

std::string upper(std::string word) {
    for (char& c : word)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return word;
}

void finish(ReviewList& list) {
    std::sort(list.entries.begin(), list.entries.end(),
              [](const ReviewEntry& a, const ReviewEntry& b) {
                  if (a.word.size() != b.word.size()) return a.word.size() > b.word.size();
                  return a.word < b.word;
              });
    for (const ReviewEntry& entry : list.entries)
        list.points += entry.points;
}

} // namespace

BoardReview reviewBoard(const std::vector<FoundWord>& found, const BoardLetters& letters,
                        const std::vector<std::string>& playerWords,
                        const std::vector<std::string>& cpuWords) {
    std::unordered_map<std::string, ReviewEntry> byWord;
    for (const FoundWord& f : found)
        byWord[lower(f.word)] = {lower(f.word), punteggioParola(f.word.size()), f.path, f.dice};
    const auto entry = [&](const std::string& word) {
        auto it = byWord.find(word);
        if (it != byWord.end()) return it->second;
        ReviewEntry missing{word, punteggioParola(word.size()), tracePath(letters, upper(word)), 0};
        for (int cell : missing.path)
            missing.dice |= 1u << cell;
        return missing;
    };

    BoardReview review;
    for (const std::string& w : playerWords)
        review.player.entries.push_back(entry(w));
    for (const std::string& w : cpuWords)
        review.cpu.entries.push_back(entry(w));
    std::set<std::string> taken(playerWords.begin(), playerWords.end());
    taken.insert(cpuWords.begin(), cpuWords.end());
    for (const auto& [word, e] : byWord)
        if (!taken.count(word)) review.missed.entries.push_back(e);
    finish(review.player);
    finish(review.cpu);
    finish(review.missed);

    std::set<std::string> all(taken);
    for (const auto& [word, e] : byWord)
        all.insert(word);
    review.words = static_cast<int>(all.size());
    for (const std::string& w : all)
        review.points += punteggioParola(w.size());
    return review;
}

std::vector<const ReviewEntry*> throughCell(const ReviewList& list, int cell) {
    std::vector<const ReviewEntry*> entries;
    for (const ReviewEntry& entry : list.entries)
        if (cell < 0 || entry.passesThrough(cell)) entries.push_back(&entry);
    return entries;
}

} // namespace griglione
