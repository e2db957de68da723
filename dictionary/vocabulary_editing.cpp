#include "dictionary/vocabulary_editing.h"

#include "core/number_text.h"
#include "core/player_text.h"
#include "dictionary/dictionary_format.h"

#include <cctype>

namespace griglione {

NewWordCheck checkNewWord(std::string_view parola, std::string_view alfabeto,
                          const std::function<bool(const std::string&)>& inMainDictionary,
                          const std::function<bool(const std::string&)>& inList) {
    for (const char c : parola)
        if (alfabeto.find(c) == std::string_view::npos) return NewWordCheck::BadLetter;
    if (parola.empty()) return NewWordCheck::Empty;
    if (parola.size() < static_cast<std::size_t>(kMinWordLength)) return NewWordCheck::TooShort;
    const std::string word(parola);
    if (inMainDictionary(word)) return NewWordCheck::InMainDictionary;
    if (inList(word)) return NewWordCheck::InPersonalList;
    return NewWordCheck::Added;
}

std::string newWordMessage(NewWordCheck check) {
    switch (check) {
    case NewWordCheck::BadLetter:
        return playerText("VocabularyEditing",
                          "Sono stati utilizzati uno o più caratteri non contemplati "
                          "dall'alfabeto italiano oppure caratteri numerici!");
    case NewWordCheck::TooShort:
        return playerText("VocabularyEditing",
                          "La parola deve essere composta da 3 a 10 caratteri, vuoi continuare?");
    case NewWordCheck::InMainDictionary:
        return playerText("VocabularyEditing", "Parola già inserita nel vocabolario generale!");
    case NewWordCheck::InPersonalList:
        return playerText("VocabularyEditing", "Parola già inserita nel vocabolario personale!");
    case NewWordCheck::Empty:
    case NewWordCheck::Added:
        break;
    }
    return {};
}

std::optional<std::string> deleteRefusal(int selectedRow, int count) {
    if (selectedRow >= 0 && selectedRow < count) return std::nullopt;
    if (count > 0)
        return playerText("VocabularyEditing",
                          "Occorre prima selezionare la parola da cancellare!");
    return playerText("VocabularyEditing",
                      "Non ci sono parole da cancellare dal vocabolario privato!");
}

int rowAfterDelete(int removedRow, int remainingCount) {
    if (remainingCount <= 0) return -1;
    if (removedRow <= 0) return 0;
    return removedRow - 1 < remainingCount ? removedRow - 1 : remainingCount - 1;
}

std::string personalVocabularyBytes(const std::vector<std::string>& words) {
    std::string bytes;
    for (const std::string& word : words)
        bytes.append(word).append("\r\n");
    return bytes;
}

EntryKey filterEntryKey(char key) {
    if (key == '\r' || key == '\n') return {EntryKeyAction::Insert};
    if (key == '\b') return {EntryKeyAction::Keep, key};
    const char upper = static_cast<char>(std::toupper(static_cast<unsigned char>(key)));
    if (upper >= 'A' && upper <= 'Z' &&
        std::string_view("ABCDEFGHILMNOPQRSTUVZ").find(upper) != std::string_view::npos)
        return {EntryKeyAction::Keep, upper};
    return {EntryKeyAction::Drop};
}

InsertCheck checkInsert(std::string_view parola,
                        const std::function<bool(const std::string&)>& inList) {
    if (parola.size() < static_cast<std::size_t>(kMinWordLength) ||
        parola.size() > static_cast<std::size_t>(kMaxIndexedLength))
        return InsertCheck::BadLength;
    return inList(std::string(parola)) ? InsertCheck::Exists : InsertCheck::Added;
}

std::string insertMessage(InsertCheck check, const std::string& parola) {
    switch (check) {
    case InsertCheck::BadLength:
        return playerText(
            "VocabularyEditing",
            "Nel dizionario sono ammesse solamente parole formate da 3 a 10 caratteri.");
    case InsertCheck::Exists:
        return withArgs(
            playerText("VocabularyEditing", "La parola '%1' esiste già nel dizionario."), {parola});
    case InsertCheck::Added:
        break;
    }
    return withArgs(playerText("VocabularyEditing",
                               "La parola '%1' è stata momentaneamente aggiunta al dizionario, "
                               "cliccare sul bottone 'Crea dizionario' per la ricostruzione "
                               "definitiva sul disco."),
                    {parola});
}

std::string countLabel(std::int64_t count, bool edited) {
    return withArgs(edited ? playerText("VocabularyEditing", "(%1) Parole")
                           : playerText("VocabularyEditing", "(%1) parole"),
                    {std::to_string(count)});
}

std::int64_t countLabelNumber(std::string_view label) {
    const std::size_t open = label.find('(');
    if (open == std::string_view::npos) return 0;
    return static_cast<std::int64_t>(leadingNumber(label.substr(open + 1)));
}

} // namespace griglione
