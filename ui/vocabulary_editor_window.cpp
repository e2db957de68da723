#include "ui/vocabulary_editor_window.h"

#include "core/ansi_text.h"
#include "core/atomic_file.h"
#include "core/file_names.h"
#include "dictionary/personal_vocabulary.h"
#include "dictionary/rules_text.h"
#include "dictionary/vocabulary_editing.h"
#include "ui/message_window.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace griglione {
namespace {

QPushButton* button(QWidget* parent, const char* name, const char* caption, const QRect& at) {
    auto* b = new QPushButton(VocabularyEditorWindow::tr(caption), parent);
    b->setObjectName(name);
    b->setGeometry(at);
    return b;
}

QLabel* label(QWidget* parent, const char* name, const char* text, const QRect& at) {
    auto* l = new QLabel(VocabularyEditorWindow::tr(text), parent);
    l->setObjectName(name);
    l->setGeometry(at);
    l->setWordWrap(true);
    l->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return l;
}

// The program's folder as the write-failure message names it, without a closing separator.
std::string folderName(const std::filesystem::path& folder) {
    std::error_code error;
    std::string name = std::filesystem::absolute(folder, error).lexically_normal().string();
    while (name.size() > 1 && name.back() == '/')
        name.pop_back();
    return name;
}

} // namespace

VocabularyEditorWindow::VocabularyEditorWindow(EditorContext context, QWidget* parent)
    : QDialog(parent), m_context(std::move(context)) {
    setObjectName("Form5");
    setWindowTitle(tr("Edit vocabolario personale"));
    setFixedSize(430, 340);

    label(this, "Label3", QT_TR_NOOP("Parole già inserite:"), {12, 10, 190, 18});
    m_words = new QListWidget(this);
    m_words->setObjectName("List1");
    m_words->setGeometry(12, 30, 190, 296);
    m_words->setSortingEnabled(true);
    m_words->setAccessibleName(tr("Parole già inserite"));

    m_hint = label(this, "Label2",
                   QT_TR_NOOP("Cliccare su <Nuova parola> per aggiungere una parola al vocabolario "
                              "personale utilizzabile all'interno del gioco"),
                   {218, 30, 200, 80});
    m_hint->setTextFormat(Qt::PlainText);
    m_prompt = label(this, "Label1", QT_TR_NOOP("Digita nuova parola:"), {218, 30, 200, 18});
    m_entry = new QLineEdit(this);
    m_entry->setObjectName("Text1");
    m_entry->setAccessibleName(tr("Digita nuova parola"));
    m_entry->setGeometry(218, 50, 200, 24);
    m_entry->setMaxLength(10);
    m_entry->installEventFilter(this);
    m_confirm = button(this, "Command3d4", QT_TR_NOOP("Con&ferma"), {218, 80, 200, 28});

    m_new = button(this, "Command3d2", QT_TR_NOOP("&Nuova parola"), {218, 126, 200, 30});
    m_delete = button(this, "Command3d3", QT_TR_NOOP("&Cancella parola"), {218, 162, 200, 30});
    auto* help = button(this, "Command3d5", QT_TR_NOOP("&Help"), {218, 198, 200, 30});
    m_back = button(this, "Command3d1", QT_TR_NOOP("&Torna al gioco"), {218, 296, 200, 30});
    for (QPushButton* b : {m_confirm, m_new, m_delete, help, m_back})
        b->setAutoDefault(false);

    connect(m_new, &QPushButton::clicked, this, &VocabularyEditorWindow::nuovaParola);
    connect(m_confirm, &QPushButton::clicked, this, &VocabularyEditorWindow::conferma);
    connect(m_delete, &QPushButton::clicked, this, &VocabularyEditorWindow::cancellaParola);
    connect(help, &QPushButton::clicked, this, &VocabularyEditorWindow::help);
    connect(m_back, &QPushButton::clicked, this, &VocabularyEditorWindow::tornaAlGioco);

    m_context.closeMessages();
    m_context.files.closeAll();
    centreOnScreen(this);
    loadWords();
    closeEntry();
    m_words->setFocus();
}

void VocabularyEditorWindow::loadWords() {
    const auto file = resolveFileName(m_context.folder,
                                      personalVocabularyFileName(m_context.state.numDizionario));
    appendToFile(file, ""); // created empty when missing, left as it is otherwise
    for (const std::string& word : readPersonalVocabulary(file))
        m_words->addItem(QString::fromStdString(fromAnsi(word)));
    if (m_words->count() > 0) m_words->setCurrentRow(0);
}

void VocabularyEditorWindow::nuovaParola() {
    m_entry->clear();
    m_entry->show();
    m_prompt->show();
    m_confirm->show();
    m_entry->setFocus();
    for (QPushButton* b : {m_new, m_back, m_delete})
        b->setEnabled(false);
    m_hint->hide();
}

bool VocabularyEditorWindow::listHas(const QString& word) const {
    return !m_words->findItems(word, Qt::MatchExactly | Qt::MatchCaseSensitive).isEmpty();
}

void VocabularyEditorWindow::conferma() {
    // The dictionary scan lets events run: a second confirmation meanwhile would close its file.
    if (m_checking || m_entry->isHidden()) return;
    m_checking = true;
    const QString typed = m_entry->text().toUpper();
    const std::string word = typed.toStdString();
    bool busy = false;
    const auto inMain = [&](const std::string& w) {
        busy = true;
        setCursor(Qt::WaitCursor);
        return m_context.dictionary.trovaInDizionario(w);
    };
    const auto inList = [&](const std::string&) { return listHas(typed); };
    const NewWordCheck check = checkNewWord(
        word, m_context.state.alfabeto[m_context.state.numDizionario - 1], inMain, inList);
    m_checking = false;
    if (check == NewWordCheck::TooShort) {
        if (m_context.ask(newWordMessage(check))) {
            m_entry->setFocus();
            return;
        }
    } else if (check == NewWordCheck::Added) {
        m_words->addItem(typed);
    } else if (check != NewWordCheck::Empty) {
        m_context.alerts.avviso(newWordMessage(check));
    }
    if (busy) unsetCursor();
    closeEntry();
}

void VocabularyEditorWindow::closeEntry() {
    // Hiding the entry would hand its focus to the next control still enabled, "Help".
    const bool entryHadFocus = focusWidget() == m_entry || focusWidget() == m_confirm;
    m_entry->hide();
    m_prompt->hide();
    m_confirm->hide();
    for (QPushButton* b : {m_new, m_back, m_delete})
        b->setEnabled(true);
    m_hint->show();
    if (entryHadFocus || focusWidget() == nullptr || focusWidget()->isHidden()) m_new->setFocus();
}

void VocabularyEditorWindow::cancellaParola() {
    const int row =
        m_words->currentItem() && m_words->currentItem()->isSelected() ? m_words->currentRow() : -1;
    if (const auto refusal = deleteRefusal(row, m_words->count())) {
        m_context.alerts.avviso(*refusal);
        return;
    }
    delete m_words->takeItem(row);
    const int next = rowAfterDelete(row, m_words->count());
    if (next >= 0)
        m_words->setCurrentRow(next);
    else
        m_words->setCurrentRow(-1);
}

void VocabularyEditorWindow::help() {
    if (m_rules.empty()) {
        if (const auto text = readRulesText(m_context.folder, "\n"))
            m_rules = *text;
        else
            m_context.alerts.avviso(
                tr("ERRORE 0001: File contenente le regole sulle parole non trovato: REGPAROL.TCT")
                    .toStdString());
    }
    m_context.alerts.avviso(m_rules);
}

void VocabularyEditorWindow::tornaAlGioco() {
    m_context.files.closeAll();
    std::vector<std::string> words;
    for (int i = 0; i < m_words->count(); ++i)
        words.push_back(toAnsi(m_words->item(i)->text().toStdString()));
    const auto file = resolveFileName(m_context.folder,
                                      personalVocabularyFileName(m_context.state.numDizionario));
    if (!writeFileAtomically(file, personalVocabularyBytes(words))) {
        m_context.alerts.avviso(tr("Errore non e' possibile scrivere sul disco nella posizione: "
                                   "%1 - Il programma verra' terminato.")
                                    .arg(QString::fromStdString(folderName(m_context.folder)))
                                    .toStdString());
        m_context.terminate();
    }
    accept();
}

bool VocabularyEditorWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_entry && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            conferma();
            return true;
        }
        if (key == Qt::Key_Escape) {
            m_entry->clear();
            conferma();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void VocabularyEditorWindow::keyPressEvent(QKeyEvent* event) {
    // The window has no cancel button: Escape does not close it.
    if (event->key() == Qt::Key_Escape) return event->accept();
    QDialog::keyPressEvent(event);
}

void VocabularyEditorWindow::reject() {
    // Closing by the frame discards the changes, but not in the middle of a dictionary scan.
    if (!m_checking) QDialog::reject();
}

} // namespace griglione
