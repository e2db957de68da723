<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="it">
<context>
    <name>Accessibility</name>
    <message>
        <source>Scorrimento verticale</source>
        <translation>Vertical scrolling</translation>
    </message>
    <message>
        <source>Scorrimento orizzontale</source>
        <translation>Horizontal scrolling</translation>
    </message>
</context>
<context>
    <name>AlertBoxes</name>
    <message>
        <source>Annulla</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>Announcements</name>
    <message>
        <source>1 punto</source>
        <translation>1 point</translation>
    </message>
    <message>
        <source>%1 punti</source>
        <translation>%1 points</translation>
    </message>
    <message>
        <source>Parola vuota</source>
        <translation>Empty word</translation>
    </message>
    <message>
        <source>%1: nessun dado</source>
        <translation>%1: no die</translation>
    </message>
    <message>
        <source>%1: %2, in tutto %3</source>
        <translation>%1: %2, %3 in all</translation>
    </message>
    <message>
        <source>Mancano %1 secondi</source>
        <translation>%1 seconds left</translation>
    </message>
    <message>
        <source>1 parola</source>
        <translation>1 word</translation>
    </message>
    <message>
        <source>%1 parole</source>
        <translation>%1 words</translation>
    </message>
    <message>
        <source>Tobia (CPU): %1</source>
        <translation>Tobia (CPU): %1</translation>
    </message>
    <message>
        <source>%1 %2 %3, %4 %5.</source>
        <translation>%1 %2 %3, %4 %5.</translation>
    </message>
    <message>
        <source>%1 tue, %2 della CPU, %3 mancate</source>
        <translation>%1 yours, %2 the CPU's, %3 missed</translation>
    </message>
    <message>
        <source>Tutte le parole: %1</source>
        <translation>All the words: %1</translation>
    </message>
    <message>
        <source>Dado %1: %2</source>
        <translation>Die %1: %2</translation>
    </message>
</context>
<context>
    <name>BoardGame</name>
    <message>
        <source>Lettera non adiacente</source>
        <translation>Die does not touch</translation>
    </message>
    <message>
        <source>Attenzione : La lettera deve essere adiacente a quella cliccata in precedenza! Per scrivere una nuova parola cliccare il pulsante &lt;Azzera&gt;</source>
        <translation>Watch out: the die must touch the one you clicked before! To write a new word, click the &lt;Clear&gt; button.</translation>
    </message>
    <message>
        <source>OOPS!</source>
        <translation>OOPS!</translation>
    </message>
</context>
<context>
    <name>Dictionary</name>
    <message>
        <source>Errore fatale! non trovato file di vocabolario: SLESSICO.%1</source>
        <translation>Fatal error! Dictionary file not found: SLESSICO.%1</translation>
    </message>
    <message>
        <source>Errore 0002: Non trovato file di vocabolario SLESSICO.%1</source>
        <translation>Error 0002: Dictionary file SLESSICO.%1 not found</translation>
    </message>
</context>
<context>
    <name>DieCell</name>
    <message>
        <source>riga %1, colonna %2</source>
        <translation>row %1, column %2</translation>
    </message>
    <message>
        <source>vuoto</source>
        <translation>blank</translation>
    </message>
</context>
<context>
    <name>EndOfMatch</name>
    <message>
        <source>Ha vinto %1</source>
        <translation>%1 wins</translation>
    </message>
    <message>
        <source>Ha vinto %1!</source>
        <translation>%1 wins!</translation>
    </message>
    <message>
        <source>Partita PARI!</source>
        <translation>It&apos;s a DRAW!</translation>
    </message>
</context>
<context>
    <name>HelpLinks</name>
    <message>
        <source>GRIGLIONE.htm</source>
        <extracomment>The help page in this language, a file beside the game&apos;s own files.</extracomment>
        <translation>GRIGLIONE_en.htm</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Parola composta</source>
        <translation>Current word</translation>
    </message>
    <message>
        <source>Invia la parola composta</source>
        <translation>Submit the current word</translation>
    </message>
    <message>
        <source>Cancella la parola composta</source>
        <translation>Clear the current word</translation>
    </message>
    <message>
        <source>Tempo della partita</source>
        <translation>Match time</translation>
    </message>
    <message>
        <source>Tempo trascorso</source>
        <translation>Time gone by</translation>
    </message>
    <message>
        <source>La parte della partita già trascorsa</source>
        <translation>How much of the match has gone by</translation>
    </message>
    <message>
        <source>Secondi trascorsi</source>
        <translation>Seconds gone by</translation>
    </message>
    <message>
        <source>Giocatore</source>
        <translation>Player</translation>
    </message>
    <message>
        <source>Il tuo nome, per la tabella dei record</source>
        <translation>Your name, for the record table</translation>
    </message>
    <message>
        <source>Il tuo avversario</source>
        <translation>Your opponent</translation>
    </message>
    <message>
        <source>Trovate da te</source>
        <translation>Your words</translation>
    </message>
    <message>
        <source>Le parole che hai trovato</source>
        <translation>The words you found</translation>
    </message>
    <message>
        <source>Tobia (CPU)</source>
        <translation>Tobia (CPU)</translation>
    </message>
    <message>
        <source>Le parole trovate dal computer</source>
        <translation>The words your opponent found</translation>
    </message>
    <message>
        <source>I tuoi punti</source>
        <translation>Your score</translation>
    </message>
    <message>
        <source>Punti di Tobia (CPU)</source>
        <translation>Tobia (CPU)&apos;s score</translation>
    </message>
    <message>
        <source>Il Griglione</source>
        <translation>Il Griglione</translation>
    </message>
    <message>
        <source>Apre il sito dell&apos;autore nel browser: %1</source>
        <translation>Opens the author&apos;s web site in the browser: %1</translation>
    </message>
    <message>
        <source>Ultimo tentativo del computer</source>
        <translation>The computer&apos;s last try</translation>
    </message>
</context>
<context>
    <name>MatchClock</name>
    <message>
        <source>Inizio partita</source>
        <translation>Match start</translation>
    </message>
    <message>
        <source>Si inizia una nuova partita di %1 secondi.<byte value="xd"/>
Il dizionario usato è : %2<byte value="xd"/>
Il livello dell&apos;avversario è : %3<byte value="xd"/>
Cliccare il pulsante &lt;OK&gt; per giocare.</source>
        <translation>A new match of %1 seconds begins.<byte value="xd"/>
Dictionary in use: %2<byte value="xd"/>
Opponent level: %3<byte value="xd"/>
Click the &lt;OK&gt; button to play.</translation>
    </message>
    <message>
        <source>START</source>
        <extracomment>The message window&apos;s headline: five letters, each shown in a box of its own.</extracomment>
        <translation>START</translation>
    </message>
</context>
<context>
    <name>MatchLogWriter</name>
    <message>
        <source>Errore 0006: impossibile scrivere il registro delle partite %1 nella posizione: %2 (%3). Questa partita non entra nelle statistiche; l&apos;avviso non si ripete fino alla prossima partenza del gioco.</source>
        <translation>Error 0006: cannot write the match log %1 in the folder: %2 (%3). This match is left out of the statistics; this notice is not repeated until the game is started again.</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Nuova Partita</source>
        <translation>&amp;New Match</translation>
    </message>
    <message>
        <source>&amp;Tabella records ...</source>
        <translation>&amp;Record Table ...</translation>
    </message>
    <message>
        <source>&amp;Edit vocabolario personale ...</source>
        <translation>&amp;Edit Personal Vocabulary ...</translation>
    </message>
    <message>
        <source>&amp;Vocabolario principale ...</source>
        <translation>&amp;Main Dictionary ...</translation>
    </message>
    <message>
        <source>&amp;Fine</source>
        <translation>E&amp;xit</translation>
    </message>
    <message>
        <source>&amp;Opzioni</source>
        <translation>&amp;Options</translation>
    </message>
    <message>
        <source>&amp;Suono</source>
        <translation>&amp;Sound</translation>
    </message>
    <message>
        <source>&amp;Lingua dizionario</source>
        <translation>Dictionary &amp;Language</translation>
    </message>
    <message>
        <source>&amp;Livello di gioco</source>
        <translation>&amp;Opponent Level</translation>
    </message>
    <message>
        <source>&amp;Tempo per partita</source>
        <translation>Match &amp;Time</translation>
    </message>
    <message>
        <source>S&amp;pessore linea blu composizione parola</source>
        <translation>Blue Word Line &amp;Width</translation>
    </message>
    <message>
        <source>&amp;Parole ammesse</source>
        <translation>&amp;Allowed Words</translation>
    </message>
    <message>
        <source>&amp;?</source>
        <translation>&amp;?</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>&amp;Contatta l&apos;autore ...</source>
        <translation>&amp;Contact the Author ...</translation>
    </message>
    <message>
        <source>&amp;Visita Home Page dell&apos;autore ...</source>
        <translation>&amp;Visit the Author&apos;s Home Page ...</translation>
    </message>
    <message>
        <source>&amp;Informazioni su &apos;Il Griglione&apos; ...</source>
        <translation>&amp;About &apos;Il Griglione&apos; ...</translation>
    </message>
    <message>
        <source>&amp;Statistiche ...</source>
        <translation>&amp;Statistics ...</translation>
    </message>
    <message>
        <source>&amp;Gioca un tabellone…</source>
        <translation>&amp;Play a board…</translation>
    </message>
    <message>
        <source>Tabellone del gi&amp;orno</source>
        <translation>Board of the &amp;day</translation>
    </message>
</context>
<context>
    <name>NumberText</name>
    <message>
        <source>.</source>
        <extracomment>The thousands separator of scores and word counts.</extracomment>
        <translation>,</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>&amp;Junior (Birillo)</source>
        <translation>&amp;Junior (Birillo)</translation>
    </message>
    <message>
        <source>Junior (Birillo)</source>
        <translation>Junior (Birillo)</translation>
    </message>
    <message>
        <source>&amp;Principiante (Tapo)</source>
        <translation>&amp;Beginner (Tapo)</translation>
    </message>
    <message>
        <source>Principiante (Tapo)</source>
        <translation>Beginner (Tapo)</translation>
    </message>
    <message>
        <source>&amp;Medio (Memo)</source>
        <translation>&amp;Intermediate (Memo)</translation>
    </message>
    <message>
        <source>Medio (Memo)</source>
        <translation>Intermediate (Memo)</translation>
    </message>
    <message>
        <source>&amp;Esperto (Sapienzo)</source>
        <translation>&amp;Expert (Sapienzo)</translation>
    </message>
    <message>
        <source>Esperto (Sapienzo)</source>
        <translation>Expert (Sapienzo)</translation>
    </message>
    <message>
        <source>&amp;60 Secondi</source>
        <translation>&amp;60 Seconds</translation>
    </message>
    <message>
        <source>&amp;90 Secondi</source>
        <translation>&amp;90 Seconds</translation>
    </message>
    <message>
        <source>&amp;2 Minuti</source>
        <translation>&amp;2 Minutes</translation>
    </message>
    <message>
        <source>&amp;5 minuti</source>
        <translation>&amp;5 Minutes</translation>
    </message>
    <message>
        <source>&amp;Stretta</source>
        <translation>&amp;Narrow</translation>
    </message>
    <message>
        <source>&amp;Media</source>
        <translation>&amp;Medium</translation>
    </message>
    <message>
        <source>&amp;Larga</source>
        <translation>&amp;Wide</translation>
    </message>
    <message>
        <source>&amp;Italiano</source>
        <translation>&amp;Italian</translation>
    </message>
    <message>
        <source>Italiano</source>
        <translation>Italian</translation>
    </message>
    <message>
        <source>&amp;English</source>
        <translation>&amp;English</translation>
    </message>
    <message>
        <source>English</source>
        <translation>English</translation>
    </message>
    <message>
        <source>&amp;Latino</source>
        <translation>&amp;Latin</translation>
    </message>
    <message>
        <source>Latino</source>
        <translation>Latin</translation>
    </message>
</context>
<context>
    <name>OptionsFlow</name>
    <message>
        <source>Errore 001: impossibile riscivere il file di inizializzazione ZARMOLO.INI</source>
        <translation>Error 001: cannot rewrite the settings file ZARMOLO.INI</translation>
    </message>
</context>
<context>
    <name>PersonalVocabulary</name>
    <message>
        <source>Errore 0003: impossibile scrivere il file del vocabolario personale %1, la parola non è stata salvata</source>
        <translation>Error 0003: cannot write the personal vocabulary file %1; the word was not saved</translation>
    </message>
</context>
<context>
    <name>RecordTable</name>
    <message>
        <source> N. - Giocatore    -  Punti</source>
        <translation> N. - Player       -  Score</translation>
    </message>
</context>
<context>
    <name>RecordsFlow</name>
    <message>
        <source>Errore 0004: impossibile scrivere il file dei record zarMolo.HIS, il record non è stato salvato</source>
        <translation>Error 0004: cannot write the record file zarMolo.HIS; the record was not saved</translation>
    </message>
</context>
<context>
    <name>RulesText</name>
    <message>
        <source>ERRORE 0001: File contenente le regole sulle parole non trovato: %1</source>
        <translation>ERROR 0001: Word rules file not found: %1</translation>
    </message>
    <message>
        <source>File REGPAROL.txt non trovato</source>
        <translation>File REGPAROL.TXT not found</translation>
    </message>
    <message>
        <source>REGPAROL.TXT</source>
        <extracomment>The rules file in this language, beside the game&apos;s files; the Italian one when it is missing.</extracomment>
        <translation>REGPAROL_en.TXT</translation>
    </message>
</context>
<context>
    <name>SystemReason</name>
    <message>
        <source>permesso negato</source>
        <translation>permission denied</translation>
    </message>
    <message>
        <source>disco pieno</source>
        <translation>disk full</translation>
    </message>
    <message>
        <source>spazio a disposizione esaurito</source>
        <translation>disk quota used up</translation>
    </message>
    <message>
        <source>disco protetto in scrittura</source>
        <translation>write-protected disk</translation>
    </message>
    <message>
        <source>al suo posto c&apos;è una cartella</source>
        <translation>a folder is in its place</translation>
    </message>
    <message>
        <source>cartella inesistente</source>
        <translation>no such folder</translation>
    </message>
    <message>
        <source>errore di lettura o scrittura del disco</source>
        <translation>disk read or write error</translation>
    </message>
    <message>
        <source>percorso troppo lungo</source>
        <translation>path too long</translation>
    </message>
</context>
<context>
    <name>VocabularyEditing</name>
    <message>
        <source>Sono stati utilizzati uno o più caratteri non contemplati dall&apos;alfabeto italiano oppure caratteri numerici!</source>
        <translation>One or more characters are not in the dictionary&apos;s alphabet, or are digits!</translation>
    </message>
    <message>
        <source>La parola deve essere composta da 3 a 10 caratteri, vuoi continuare?</source>
        <translation>The word must have 3 to 10 letters. Do you want to go on?</translation>
    </message>
    <message>
        <source>Parola già inserita nel vocabolario generale!</source>
        <translation>The word is already in the main dictionary!</translation>
    </message>
    <message>
        <source>Parola già inserita nel vocabolario personale!</source>
        <translation>The word is already in the personal vocabulary!</translation>
    </message>
    <message>
        <source>Occorre prima selezionare la parola da cancellare!</source>
        <translation>Select the word to delete first!</translation>
    </message>
    <message>
        <source>Non ci sono parole da cancellare dal vocabolario privato!</source>
        <translation>There are no words to delete from the personal vocabulary!</translation>
    </message>
    <message>
        <source>Nel dizionario sono ammesse solamente parole formate da 3 a 10 caratteri.</source>
        <translation>Only words of 3 to 10 letters are allowed in the dictionary.</translation>
    </message>
    <message>
        <source>La parola &apos;%1&apos; esiste già nel dizionario.</source>
        <translation>The word &apos;%1&apos; is already in the dictionary.</translation>
    </message>
    <message>
        <source>La parola &apos;%1&apos; è stata momentaneamente aggiunta al dizionario, cliccare sul bottone &apos;Crea dizionario&apos; per la ricostruzione definitiva sul disco.</source>
        <translation>The word &apos;%1&apos; has been added to the dictionary for now: click the &apos;Rebuild Dictionary&apos; button to write it to the disk for good.</translation>
    </message>
    <message>
        <source>(%1) Parole</source>
        <translation>(%1) Words</translation>
    </message>
    <message>
        <source>(%1) parole</source>
        <translation>(%1) words</translation>
    </message>
</context>
<context>
    <name>WordSubmission</name>
    <message>
        <source>Inserisci una parola!</source>
        <translation>Enter a word!</translation>
    </message>
    <message>
        <source>Formare una parola di senso compiuto cliccando su lettere adiacenti tra di loro orizzontalmente, verticalmente e diagonalmente, la stessa lettera non può essere usata più di una volta per comporre la parola. Le parole già trovate (anche dal PC) non possono ovviamente essere riutilizzate.</source>
        <translation>Form a real word by clicking dice that touch each other horizontally, vertically or diagonally; a die cannot be used more than once in a word. Words already found (by the opponent too) cannot be used again, of course.</translation>
    </message>
    <message>
        <source>Parola troppo corta!</source>
        <translation>Word too short!</translation>
    </message>
    <message>
        <source>Attenzione: Devi inserire una parola in %1 che deve essere composta almeno da 3 caratteri.</source>
        <translation>Watch out: you must enter a word in %1 of at least 3 letters.</translation>
    </message>
    <message>
        <source>Parola già inserita da te!</source>
        <translation>You already have this word!</translation>
    </message>
    <message>
        <source>Hai già precedentemente inserito la parola: %1 mi dispiace, punteggio non assegnato.</source>
        <translation>You have already entered the word %1. Sorry, no points.</translation>
    </message>
    <message>
        <source>Parola già inserita dalla CPU!</source>
        <translation>The opponent already has this word!</translation>
    </message>
    <message>
        <source>Il computer ha già inserito la parola: %1 mi dispiace, punteggio non assegnato</source>
        <translation>The opponent has already entered the word %1. Sorry, no points.</translation>
    </message>
    <message>
        <source>BENE!</source>
        <translation>GOOD!</translation>
    </message>
    <message>
        <source>Complimenti, parola accettata!</source>
        <translation>Well done, word accepted!</translation>
    </message>
    <message>
        <source>Complimenti la parola è presente nel dizionario, verranno aggiunti:%1 punti</source>
        <translation>Well done, the word is in the dictionary: it scores %1 points.</translation>
    </message>
    <message>
        <source>OOPS!</source>
        <translation>OOPS!</translation>
    </message>
</context>
<context>
    <name>griglione::BoardCodeDialog</name>
    <message>
        <source>Il Griglione - Gioca un tabellone</source>
        <translation>Il Griglione - Play a board</translation>
    </message>
    <message>
        <source>&amp;Codice del tabellone o link della sfida:</source>
        <translation>Board code or challenge &amp;link:</translation>
    </message>
    <message>
        <source>Codice del tabellone o link della sfida</source>
        <translation>Board code or challenge link</translation>
    </message>
    <message>
        <source>Errore nel codice</source>
        <translation>Mistake in the code</translation>
    </message>
    <message>
        <source>Il tabellone in gioco ha il codice %1</source>
        <translation>The board in play has the code %1</translation>
    </message>
    <message>
        <source>&amp;Gioca</source>
        <translation>&amp;Play</translation>
    </message>
    <message>
        <source>&amp;Annulla</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message>
        <source>Scrivi il codice di un tabellone, o incolla il link di una sfida.</source>
        <translation>Type the code of a board, or paste the link of a challenge.</translation>
    </message>
    <message>
        <source>Un codice ha solo lettere e cifre: il testo contiene un carattere che nessun codice ha.</source>
        <translation>A code has only letters and digits: the text holds a character that no code has.</translation>
    </message>
    <message>
        <source>Il codice non ha la lunghezza giusta: 28 caratteri per un tabellone italiano, 30 per uno inglese o latino. Manca o avanza qualche carattere.</source>
        <translation>The code is not the right length: 28 characters for an Italian board, 30 for an English or Latin one. A character is missing or one too many.</translation>
    </message>
    <message>
        <source>Un codice comincia con la lingua del tabellone: 1 italiano, 2 inglese, 3 latino.</source>
        <translation>A code begins with the board&apos;s language: 1 Italian, 2 English, 3 Latin.</translation>
    </message>
    <message>
        <source>Il codice contiene un errore di battitura: controllalo carattere per carattere.</source>
        <translation>The code has a typing slip: check it character by character.</translation>
    </message>
    <message>
        <source>Questo codice non corrisponde a nessun tabellone.</source>
        <translation>This code matches no board.</translation>
    </message>
</context>
<context>
    <name>griglione::ChallengeFlow</name>
    <message>
        <source>Il tabellone richiesto non si può giocare.</source>
        <translation>The board asked for cannot be played.</translation>
    </message>
    <message>
        <source>Copiato negli appunti: %1</source>
        <translation>Copied to the clipboard: %1</translation>
    </message>
    <message>
        <source>L&apos;indirizzo della sfida non può superare %1 caratteri: le %2 parole più corte restano fuori e non contano.</source>
        <translation>The challenge&apos;s address cannot be longer than %1 characters: the %2 shortest words are left out and do not count.</translation>
    </message>
    <message>
        <source>Partita inviata: il browser apre la tabella della sfida.</source>
        <translation>Match sent: the browser opens the challenge&apos;s table.</translation>
    </message>
</context>
<context>
    <name>griglione::ChallengePanel</name>
    <message>
        <source>Copia c&amp;odice</source>
        <translation>Copy co&amp;de</translation>
    </message>
    <message>
        <source>Copia lin&amp;k</source>
        <translation>Copy lin&amp;k</translation>
    </message>
    <message>
        <source>&amp;Invia alla sfida</source>
        <translation>&amp;Send to the challenge</translation>
    </message>
    <message>
        <source>Copia il codice del tabellone</source>
        <translation>Copy the board&apos;s code</translation>
    </message>
    <message>
        <source>Copia il link della sfida</source>
        <translation>Copy the challenge&apos;s link</translation>
    </message>
    <message>
        <source>Invia la partita alla tabella della sfida</source>
        <translation>Send the match to the challenge&apos;s table</translation>
    </message>
    <message>
        <source>Codice: %1</source>
        <translation>Code: %1</translation>
    </message>
    <message>
        <source>Codice del tabellone: %1</source>
        <translation>Board code: %1</translation>
    </message>
    <message>
        <source>Sfida su questo tabellone</source>
        <translation>Challenge on this board</translation>
    </message>
</context>
<context>
    <name>griglione::ConfirmWindow</name>
    <message>
        <source>Il Griglione - Conferma accettazione parola</source>
        <translation>Il Griglione - Confirm the New Word</translation>
    </message>
    <message>
        <source>Questa parola  non è stata trovata nel dizionario, se non si tratta di un nome proprio, di un nome di località, di una sigla ecc. si può inserire nel vocabolario personale.</source>
        <translation>This word was not found in the dictionary. If it is not a proper name, a place name, an abbreviation or the like, you may add it to your personal vocabulary.</translation>
    </message>
    <message>
        <source>Dizionario in %1</source>
        <translation>%1 dictionary</translation>
    </message>
    <message>
        <source>Inserire e conteggiare i punti in questa manche</source>
        <translation>Add it and score its points in this match</translation>
    </message>
    <message>
        <source>Inserire e non conteggiare i punti</source>
        <translation>Add it without scoring</translation>
    </message>
    <message>
        <source>Non inserire nel dizionario personale</source>
        <translation>Do not add it to the personal vocabulary</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Parole ammesse</source>
        <translation>Allowed words</translation>
    </message>
    <message>
        <source>Parola da confermare: %1</source>
        <translation>Word to confirm: %1</translation>
    </message>
</context>
<context>
    <name>griglione::DictionaryEditorWindow</name>
    <message>
        <source>Griglione  - Dizionario principale</source>
        <translation>Il Griglione - Main Dictionary</translation>
    </message>
    <message>
        <source>%1 Caratt.</source>
        <translation>%1 Letters</translation>
    </message>
    <message>
        <source>Paole presenti</source>
        <translation>Words in all</translation>
    </message>
    <message>
        <source>In corso la lettura del dizionario ...</source>
        <translation>Reading the dictionary ...</translation>
    </message>
    <message>
        <source>&amp;Inserisci</source>
        <translation>&amp;Insert</translation>
    </message>
    <message>
        <source>&amp;Aggiungi parola</source>
        <translation>&amp;Add Word</translation>
    </message>
    <message>
        <source>&amp;Cancella parola</source>
        <translation>&amp;Delete Word</translation>
    </message>
    <message>
        <source>&amp;Ricrea dizionario</source>
        <translation>&amp;Rebuild Dictionary</translation>
    </message>
    <message>
        <source>&amp;Uscita</source>
        <translation>E&amp;xit</translation>
    </message>
    <message>
        <source>Il Griglione - Dizionario principale in %1</source>
        <translation>Il Griglione - %1 Main Dictionary</translation>
    </message>
    <message>
        <source>Selezionare prima una parola da eliminare dal dizionario.</source>
        <translation>First select a word to delete from the dictionary.</translation>
    </message>
    <message>
        <source>Si desidera veramente eliminare la parola: %1</source>
        <translation>Do you really want to delete the word %1?</translation>
    </message>
    <message>
        <source>Parola eliminata, cliccare su &apos;Ricostruzione dizionario&apos; per la ricostruzione effettiva del dizionario</source>
        <translation>Word deleted: click &apos;Rebuild Dictionary&apos; to rebuild the dictionary for good.</translation>
    </message>
    <message>
        <source>Attenzione non interrompere assolutamente la fase di creazione del dizionario! Si desidera veramente ricreare il dizionario principale?</source>
        <translation>Warning: do not interrupt the writing of the dictionary in any way! Do you really want to rebuild the main dictionary?</translation>
    </message>
    <message>
        <source>Operazione annulata.</source>
        <translation>Cancelled.</translation>
    </message>
    <message>
        <source>In corso la scrittura del dizionario ...</source>
        <translation>Writing the dictionary ...</translation>
    </message>
    <message>
        <source>Dizionario riscritto correttamente</source>
        <translation>Dictionary written successfully</translation>
    </message>
    <message>
        <source>Parole di %1 caratteri</source>
        <translation>Words of %1 letters</translation>
    </message>
    <message>
        <source>Stato del dizionario</source>
        <translation>Dictionary status</translation>
    </message>
    <message>
        <source>Nuova parola</source>
        <translation>New word</translation>
    </message>
    <message>
        <source>Errore 0005: il dizionario non è stato ricreato, impossibile scrivere il file %1 nella posizione: %2 (%3). Resta in uso il dizionario di prima e le modifiche restano negli elenchi.</source>
        <translation>Error 0005: the dictionary was not rebuilt: cannot write the file %1 at: %2 (%3). The previous dictionary stays in use and your changes stay in the lists.</translation>
    </message>
</context>
<context>
    <name>griglione::EndOfMatchWindow</name>
    <message>
        <source>Il Griglione - Tempo scaduto</source>
        <translation>Il Griglione - Time&apos;s Up</translation>
    </message>
    <message>
        <source>Brivo (Umano)</source>
        <translation>Brivo (Human)</translation>
    </message>
    <message>
        <source>STATISTICHE</source>
        <translation>STATISTICS</translation>
    </message>
    <message>
        <source>Vinte</source>
        <translation>Won</translation>
    </message>
    <message>
        <source>Perse</source>
        <translation>Lost</translation>
    </message>
    <message>
        <source>Pareggi</source>
        <translation>Drawn</translation>
    </message>
    <message>
        <source>Vuoi fare un&apos;altra partitina?</source>
        <translation>How about another match?</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Annulla</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message>
        <source>&amp;Parole del tabellone</source>
        <translation>&amp;Words on the Board</translation>
    </message>
    <message>
        <source>Partite giocate</source>
        <translation>Matches played</translation>
    </message>
    <message>
        <source>Il Griglione</source>
        <translation>Il Griglione</translation>
    </message>
    <message>
        <source>Statistiche: vinte %1, perse %2, pareggi %3</source>
        <translation>Statistics: won %1, lost %2, drawn %3</translation>
    </message>
</context>
<context>
    <name>griglione::HelpLinks</name>
    <message>
        <source>Non trovato file di documentazione/help %1</source>
        <translation>Help file not found: %1</translation>
    </message>
</context>
<context>
    <name>griglione::InformationWindow</name>
    <message>
        <source>Versione 3.1.0</source>
        <translation>Version 3.1.0</translation>
    </message>
    <message>
        <source>Gioco di parole su una griglia di 5 × 5 dadi con lettere, contro il computer.</source>
        <translation>A word game on a grid of 5 × 5 letter dice, against the computer.</translation>
    </message>
    <message>
        <source>Ideazione e programmazione: Brivo.

Trova più parole del computer prima che scada il tempo: le parole lunghe valgono molto di più. Quattro avversari ti aspettano, da Birillo, che gioca con calma, a Sapienzo, che non perdona.

Dizionari italiano, inglese e latino ricavati da elenchi di parole liberi (witalian, hunspell-it, SCOWL e il dizionario latino di Karl Zeiler), con le loro licenze. Dadi, logo e suoni disegnati e composti apposta per Il Griglione.

Grazie a chi gioca e segnala le parole che mancano.</source>
        <translation>Designed and programmed by Brivo.

Find more words than the computer before the time runs out: long words are worth much more. Four opponents are waiting for you, from Birillo, who plays calmly, to Sapienzo, who forgives nothing.

Italian, English and Latin dictionaries made from free word lists (witalian, hunspell-it, SCOWL and Karl Zeiler&apos;s Latin dictionary), under their own licences. Dice, logo and sounds drawn and composed for Il Griglione.

Thanks to everyone who plays and reports missing words.</translation>
    </message>
    <message>
        <source>Clicca per visitare la &quot;Brivo home page&quot;</source>
        <translation>Click to visit the &quot;Brivo home page&quot;</translation>
    </message>
    <message>
        <source>Clicca per mandare una mail all&apos;autore</source>
        <translation>Click to send the author an e-mail</translation>
    </message>
    <message>
        <source>Software Italiano</source>
        <translation>Italian software</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Fatto</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>Informazioni su &apos;Il Griglione&apos;</source>
        <translation>About &apos;Il Griglione&apos;</translation>
    </message>
    <message>
        <source>Il Griglione</source>
        <translation>Il Griglione</translation>
    </message>
    <message>
        <source>Manda una mail all&apos;autore</source>
        <translation>Send the author an e-mail</translation>
    </message>
</context>
<context>
    <name>griglione::MainWindow</name>
    <message>
        <source>Parola composta</source>
        <translation>Current word</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Azzera </source>
        <translation>&amp;Clear</translation>
    </message>
    <message>
        <source>Giocatore</source>
        <translation>Player</translation>
    </message>
    <message>
        <source>Trovate da te</source>
        <translation>Your words</translation>
    </message>
    <message>
        <source>Punti</source>
        <translation>Score</translation>
    </message>
    <message>
        <source>Visita il sito dell&apos;autore</source>
        <translation>Visit the author&apos;s web site</translation>
    </message>
    <message>
        <source>Il Griglione - Dizionario %1</source>
        <translation>Il Griglione - %1 Dictionary</translation>
    </message>
    <message>
        <source>Informazioni dizionario</source>
        <translation>Allowed words</translation>
    </message>
    <message>
        <source>INFO!</source>
        <translation>INFO!</translation>
    </message>
</context>
<context>
    <name>griglione::MessageWindow</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>OK, fatto</source>
        <translation>OK, done</translation>
    </message>
</context>
<context>
    <name>griglione::ProgressBox</name>
    <message>
        <source>Avanzamento</source>
        <translation>Progress</translation>
    </message>
</context>
<context>
    <name>griglione::RecordsWindow</name>
    <message>
        <source>Il Griglione - Hiscores Table</source>
        <translation>Il Griglione - Record Table</translation>
    </message>
    <message>
        <source>Il Griglione : I migliori punteggi</source>
        <translation>Il Griglione : The Best Scores</translation>
    </message>
    <message>
        <source>&amp;Chiudi</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Torna al gioco.</source>
        <translation>Back to the game.</translation>
    </message>
    <message>
        <source>Se hai fatto il record massimo puoi cliccare il link sottostante, verrà aperta una finestra del browser che ti consentirà di pubblicare nella Rete il tuo risultato (Compila anche il campo E-Mail).</source>
        <translation>If you hold the top record you can click the link below: a browser window opens where you can publish your score on the Internet (fill in the E-Mail field too).</translation>
    </message>
    <message>
        <source>Mia E-Mail:</source>
        <translation>My E-Mail:</translation>
    </message>
    <message>
        <source>nome@dominio.it</source>
        <translation>name@example.com</translation>
    </message>
    <message>
        <source>Note sul punteggio:</source>
        <translation>Notes on the score:</translation>
    </message>
    <message>
        <source>Registra record in Internet</source>
        <translation>Submit the record online</translation>
    </message>
    <message>
        <source>Clicca per registrare questo punteggio nella tabella mondiale su Internet</source>
        <translation>Click to enter this score in the world record table on the Internet</translation>
    </message>
    <message>
        <source>The Best</source>
        <translation>The Best</translation>
    </message>
    <message>
        <source>Primo in classifica</source>
        <translation>First place</translation>
    </message>
    <message>
        <source>Tabella records</source>
        <translation>Record table</translation>
    </message>
    <message>
        <source>Mia E-Mail</source>
        <translation>My e-mail</translation>
    </message>
    <message>
        <source>Note sul punteggio</source>
        <translation>Notes on the score</translation>
    </message>
    <message>
        <source>Sono il migliore</source>
        <translation>I am the best</translation>
    </message>
</context>
<context>
    <name>griglione::ReviewWindow</name>
    <message>
        <source>1 parola</source>
        <translation>1 word</translation>
    </message>
    <message>
        <source>%1 parole</source>
        <translation>%1 words</translation>
    </message>
    <message>
        <source>Il Griglione - Parole del tabellone</source>
        <translation>Il Griglione - Words on the Board</translation>
    </message>
    <message>
        <source>Il tabellone nascondeva %1 per %2 punti in tutto.</source>
        <translation>The board held %1 worth %2 points in all.</translation>
    </message>
    <message>
        <source>&amp;Tutte</source>
        <translation>&amp;All</translation>
    </message>
    <message>
        <source>&amp;Chiudi</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>&amp;Le tue parole</source>
        <translation>&amp;Your words</translation>
    </message>
    <message>
        <source>Parole della C&amp;PU</source>
        <translation>&amp;Opponent&apos;s words</translation>
    </message>
    <message>
        <source>Parole &amp;mancate</source>
        <translation>&amp;Missed words</translation>
    </message>
    <message>
        <source>Clicca una parola per vederne il percorso, un dado per vedere solo le parole che lo attraversano.</source>
        <translation>Click a word to see its path, a die to see only the words that pass through it.</translation>
    </message>
    <message>
        <source>Solo le parole che passano per il dado evidenziato: cliccalo di nuovo, o &quot;Tutte&quot;, per vederle tutte.</source>
        <translation>Only the words through the highlighted die: click it again, or &quot;All&quot;, to see them all.</translation>
    </message>
    <message>
        <source>Le tue parole</source>
        <translation>Your words</translation>
    </message>
    <message>
        <source>Parole della CPU</source>
        <translation>Opponent&apos;s words</translation>
    </message>
    <message>
        <source>Parole mancate</source>
        <translation>Missed words</translation>
    </message>
    <message>
        <source>%1, %2 punti</source>
        <translation>%1, %2 points</translation>
    </message>
</context>
<context>
    <name>griglione::StatisticsWindow</name>
    <message>
        <source>Il Griglione - Statistiche</source>
        <translation>Il Griglione - Statistics</translation>
    </message>
    <message>
        <source>&amp;Lingua:</source>
        <translation>&amp;Language:</translation>
    </message>
    <message>
        <source>&amp;Tempo per partita:</source>
        <translation>Match &amp;time:</translation>
    </message>
    <message>
        <source>Risultati contro ogni livello</source>
        <translation>Results against each level</translation>
    </message>
    <message>
        <source>Avversario</source>
        <translation>Opponent</translation>
    </message>
    <message>
        <source>Partite</source>
        <translation>Matches</translation>
    </message>
    <message>
        <source>Vinte</source>
        <translation>Won</translation>
    </message>
    <message>
        <source>Pareggi</source>
        <translation>Drawn</translation>
    </message>
    <message>
        <source>Perse</source>
        <translation>Lost</translation>
    </message>
    <message>
        <source>Le dieci parole più lunghe</source>
        <translation>The ten longest words</translation>
    </message>
    <message>
        <source>Parola</source>
        <translation>Word</translation>
    </message>
    <message>
        <source>Lettere</source>
        <translation>Letters</translation>
    </message>
    <message>
        <source>Trovata il</source>
        <translation>Found on</translation>
    </message>
    <message>
        <source>Risultati contro ogni li&amp;vello</source>
        <translation>Results against each le&amp;vel</translation>
    </message>
    <message>
        <source>Le dieci parole più lung&amp;he</source>
        <translation>The ten lon&amp;gest words</translation>
    </message>
    <message>
        <source>&amp;Riepilogo</source>
        <translation>&amp;Overview</translation>
    </message>
    <message>
        <source>I numeri del grafico sono nella tabella qui sotto.</source>
        <translation>The chart&apos;s numbers are in the table below it.</translation>
    </message>
    <message>
        <source>Grafico degli ultimi 100 punteggi</source>
        <translation>Chart of the last 100 scores</translation>
    </message>
    <message>
        <source>Ultimi 100 punteggi</source>
        <translation>Last 100 scores</translation>
    </message>
    <message>
        <source>Partita</source>
        <translation>Match</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Tu</source>
        <translation>You</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>&amp;Punteggi</source>
        <translation>&amp;Scores</translation>
    </message>
    <message>
        <source>Grafico delle tue parole per lunghezza</source>
        <translation>Chart of your words by length</translation>
    </message>
    <message>
        <source>Le tue parole per lunghezza</source>
        <translation>Your words by length</translation>
    </message>
    <message>
        <source>Parole trovate</source>
        <translation>Words found</translation>
    </message>
    <message>
        <source>Parole per lun&amp;ghezza</source>
        <translation>&amp;Word lengths</translation>
    </message>
    <message>
        <source>&amp;Svuota il registro...</source>
        <translation>&amp;Empty the log...</translation>
    </message>
    <message>
        <source>&amp;Apri la cartella</source>
        <translation>Open the &amp;folder</translation>
    </message>
    <message>
        <source>Apre la cartella che contiene il registro delle partite %1.</source>
        <translation>Opens the folder that holds the match log %1.</translation>
    </message>
    <message>
        <source>&amp;Chiudi</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Righe del registro illeggibili, saltate: %1</source>
        <translation>Unreadable lines of the log, skipped: %1</translation>
    </message>
    <message>
        <source>Nessuna partita registrata con questa lingua e questo tempo.</source>
        <translation>No match logged with this language and match time.</translation>
    </message>
    <message>
        <source>nessuno</source>
        <translation>none</translation>
    </message>
    <message>
        <source>Partite giocate: %1    Miglior punteggio: %2    Punteggio medio: %3</source>
        <translation>Matches played: %1    Best score: %2    Average score: %3</translation>
    </message>
    <message>
        <source>Nessun livello scelto</source>
        <translation>No level chosen</translation>
    </message>
    <message>
        <source>Totale</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Svuotare il registro delle partite? Le statistiche di tutte le partite giocate andranno perse.</source>
        <translation>Empty the match log? The statistics of every match played will be lost.</translation>
    </message>
    <message>
        <source>Errore 0007: impossibile svuotare il registro delle partite %1 nella posizione: %2 (%3).</source>
        <translation>Error 0007: cannot empty the match log %1 in the folder: %2 (%3).</translation>
    </message>
    <message>
        <source>Statistiche</source>
        <translation>Statistics</translation>
    </message>
</context>
<context>
    <name>griglione::VocabularyEditorWindow</name>
    <message>
        <source>Edit vocabolario personale</source>
        <translation>Edit Personal Vocabulary</translation>
    </message>
    <message>
        <source>Parole già inserite:</source>
        <translation>Words already added:</translation>
    </message>
    <message>
        <source>Cliccare su &lt;Nuova parola&gt; per aggiungere una parola al vocabolario personale utilizzabile all&apos;interno del gioco</source>
        <translation>Click &lt;New Word&gt; to add a word to the personal vocabulary that the game accepts</translation>
    </message>
    <message>
        <source>Digita nuova parola:</source>
        <translation>Type the new word:</translation>
    </message>
    <message>
        <source>Con&amp;ferma</source>
        <translation>Con&amp;firm</translation>
    </message>
    <message>
        <source>&amp;Nuova parola</source>
        <translation>&amp;New Word</translation>
    </message>
    <message>
        <source>&amp;Cancella parola</source>
        <translation>&amp;Delete Word</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>&amp;Torna al gioco</source>
        <translation>&amp;Back to the Game</translation>
    </message>
    <message>
        <source>ERRORE 0001: File contenente le regole sulle parole non trovato: REGPAROL.TCT</source>
        <translation>ERROR 0001: Word rules file not found: REGPAROL.TXT</translation>
    </message>
    <message>
        <source>Errore non e&apos; possibile scrivere sul disco nella posizione: %1 - Il programma verra&apos; terminato.</source>
        <translation>Error: cannot write to the disk at: %1 - The program will now end.</translation>
    </message>
    <message>
        <source>Parole già inserite</source>
        <translation>Words already added</translation>
    </message>
    <message>
        <source>Digita nuova parola</source>
        <translation>Type the new word</translation>
    </message>
</context>
</TS>
