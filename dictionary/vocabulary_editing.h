// The rules of the two vocabulary editors that need no window: the checks of a new personal
// word in their order, the selection after a deletion, the main editor's key filter, its count
// labels, and the personal vocabulary as the editor saves it.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace griglione {

// What "Con&ferma" does with a typed word, the first check that stops it deciding.
enum class NewWordCheck {
    BadLetter,        // a character outside the language's alphabet: the word is discarded
    Empty,            // nothing typed: the entry closes without a message
    TooShort,         // one or two letters: the player is asked whether to go on correcting
    InMainDictionary, // refused: the main dictionary holds it
    InPersonalList,   // refused: the list holds it
    Added,
};

// `parola` is the typed text in upper case. The lookups are asked only when every earlier check
// passed, so the slow main dictionary scan runs for a well-formed word only.
NewWordCheck checkNewWord(std::string_view parola, std::string_view alfabeto,
                          const std::function<bool(const std::string&)>& inMainDictionary,
                          const std::function<bool(const std::string&)>& inList);

// The message the personal editor shows for a check's outcome; empty when it shows none.
std::string newWordMessage(NewWordCheck check);

// Why "&Cancella parola" of the personal editor deletes nothing; nothing when a word is selected.
std::optional<std::string> deleteRefusal(int selectedRow, int count);

// The row selected after deleting `removedRow`: the word before it, or the first one when the
// first was removed; -1 when the list is now empty.
int rowAfterDelete(int removedRow, int remainingCount);

// The personal vocabulary file as "&Torna al gioco" writes it: every word and CR LF, in order.
std::string personalVocabularyBytes(const std::vector<std::string>& words);

// A key typed in the main editor's entry field.
enum class EntryKeyAction { Insert, Keep, Drop };
struct EntryKey {
    EntryKeyAction action;
    char key = 0; // the key to keep, letters in upper case
};
// Enter inserts; Backspace and the 21 letters of the Italian alphabet are kept in upper case,
// whatever the dictionary's language; everything else is dropped.
EntryKey filterEntryKey(char key);

// What "&Inserisci" does with a word, the entry text in upper case without outer blanks.
enum class InsertCheck { BadLength, Exists, Added };
InsertCheck checkInsert(std::string_view parola,
                        const std::function<bool(const std::string&)>& inList);
std::string insertMessage(InsertCheck check, const std::string& parola);

// "(n) parole" after loading, "(n) Parole" once the player has edited or rebuilt.
std::string countLabel(std::int64_t count, bool edited);
// The number that follows the opening parenthesis of a count label; 0 when there is none.
std::int64_t countLabelNumber(std::string_view label);

} // namespace griglione
