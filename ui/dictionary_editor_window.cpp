#include "ui/dictionary_editor_window.h"

#include "core/number_text.h"
#include "core/system_reason.h"
#include "dictionary/dictionary_rebuild.h"
#include "dictionary/vocabulary_editing.h"
#include "platform/fonts.h"
#include "ui/colours.h"
#include "ui/control_names.h"
#include "ui/message_window.h"
#include "ui/progress_box.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QStringListModel>
#include <QTimer>

#include <algorithm>

namespace griglione {
namespace {

QLabel* label(QWidget* parent, const QString& name, const QString& text, const QRect& at) {
    auto* l = new QLabel(text, parent);
    l->setObjectName(name);
    l->setGeometry(at);
    return l;
}

QPushButton* button(QWidget* parent, const char* name, const char* caption, const QRect& at) {
    auto* b = new QPushButton(DictionaryEditorWindow::tr(caption), parent);
    b->setObjectName(name);
    b->setGeometry(at);
    b->setAutoDefault(false);
    return b;
}

// A word of the lists as the file holds it: one byte per letter.
std::string fileWord(const QString& word) {
    std::string bytes(static_cast<std::size_t>(word.size()), ' ');
    for (qsizetype i = 0; i < word.size(); ++i)
        bytes[static_cast<std::size_t>(i)] = static_cast<char>(word[i].unicode());
    return bytes;
}

} // namespace

DictionaryEditorWindow::DictionaryEditorWindow(EditorContext context, QWidget* parent)
    : QDialog(parent), m_context(std::move(context)) {
    setObjectName("Form9");
    setWindowTitle(tr("Griglione  - Dizionario principale"));
    setFixedSize(604, 400);
    buildControls();
    closeEntry();
    centreOnScreen(this);
}

void DictionaryEditorWindow::buildControls() {
    m_title = label(this, "Label6", {}, {12, 8, 580, 28});
    m_title->setFont(tahoma(12, true));
    setTextColour(m_title, kBlue);
    for (int i = 0; i < kLists; ++i) {
        const int x = 12 + (i % 4) * 147;
        const int y = 48 + (i / 4) * 86;
        QLabel* caption = label(this, QStringLiteral("Label1_%1").arg(i),
                                tr("%1 Caratt.").arg(i + 3), {x, y, 135, 18});
        m_words[i] = new QStringListModel(this);
        auto* list = new QComboBox(this);
        list->setObjectName(QStringLiteral("Combo1_%1").arg(i));
        list->setAccessibleName(tr("Parole di %1 caratteri").arg(i + 3));
        caption->setBuddy(list);
        list->setGeometry(x, y + 20, 135, 24);
        // Thousands of words: measuring each one for the list's width would take seconds.
        list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        // A drop-down of a dozen words, not one as tall as the screen.
        list->setStyleSheet("QComboBox { combobox-popup: 0; }");
        list->setMaxVisibleItems(12);
        auto* view = new QListView(list);
        view->setUniformItemSizes(true);
        list->setView(view);
        list->setModel(m_words[i]);
        list->installEventFilter(this);
        connect(list, &QComboBox::activated, this, [this, i] { m_current = i; });
        m_lists[i] = list;
        m_counts[i] = label(this, QStringLiteral("Label2_%1").arg(i), {}, {x, y + 48, 135, 18});
    }
    label(this, "Label5", tr("Paole presenti"), {12, 228, 100, 20});
    m_totalLabel = label(this, "Label4", {}, {112, 228, 90, 20});
    m_totalLabel->setFont(tahoma(8.25, true));
    m_status =
        label(this, "Label3", tr("In corso la lettura del dizionario ..."), {12, 252, 580, 20});
    m_status->setAccessibleDescription(tr("Stato del dizionario"));
    m_progress = new ProgressBox(this);
    m_progress->setGeometry(12, 276, 580, 16);

    m_entry = new QLineEdit(this);
    m_entry->setObjectName("Text1");
    m_entry->setAccessibleName(tr("Nuova parola"));
    m_entry->setGeometry(12, 306, 135, 24);
    m_entry->setMaxLength(10);
    m_entry->installEventFilter(this);
    m_insert = button(this, "Command3", QT_TR_NOOP("&Inserisci"), {159, 305, 135, 26});

    m_add = button(this, "Command1", QT_TR_NOOP("&Aggiungi parola"), {12, 356, 135, 30});
    m_delete = button(this, "Command5", QT_TR_NOOP("&Cancella parola"), {159, 356, 135, 30});
    m_rebuild = button(this, "Command4", QT_TR_NOOP("&Ricrea dizionario"), {306, 356, 135, 30});
    m_exit = button(this, "Command2", QT_TR_NOOP("&Uscita"), {457, 356, 135, 30});
    for (QPushButton* b : {m_add, m_delete, m_rebuild})
        b->setEnabled(false);

    connect(m_add, &QPushButton::clicked, this, &DictionaryEditorWindow::aggiungiParola);
    connect(m_insert, &QPushButton::clicked, this, &DictionaryEditorWindow::inserisci);
    connect(m_delete, &QPushButton::clicked, this, &DictionaryEditorWindow::cancellaParola);
    connect(m_rebuild, &QPushButton::clicked, this, &DictionaryEditorWindow::ricreaDizionario);
    connect(m_exit, &QPushButton::clicked, this, &DictionaryEditorWindow::uscita);
}

void DictionaryEditorWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (m_started) return;
    m_started = true;
    // Loads from the event loop, once the window is on the screen and can show its progress.
    QTimer::singleShot(0, this, &DictionaryEditorWindow::loadWords);
}

void DictionaryEditorWindow::loadWords() {
    m_context.closeMessages();
    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_stop = false;
    m_total = 0;
    m_title->setText(
        tr("Il Griglione - Dizionario principale in %1")
            .arg(QCoreApplication::translate("Options", m_context.state.nomeDizionario.c_str())));
    const DictionaryIndex& index = m_context.dictionary.index();
    DictionaryBlocks blocks(m_context.dictionary.dictionaryPath());
    for (int i = 0; i < kLists; ++i) {
        const int length = i + kMinWordLength;
        m_progress->fillYellow();
        m_context.yield();
        const std::string block = blocks.block(index, length);
        const qsizetype n = static_cast<qsizetype>(block.size()) / length;
        QStringList words;
        words.reserve(n);
        for (qsizetype k = 1; k <= n; ++k) {
            words.append(QString::fromLatin1(block.data() + (k - 1) * length, length));
            ++m_total;
            if (k % 400 == 0) {
                QApplication::restoreOverrideCursor();
                if (m_stop) { // the window is closing
                    m_stop = false;
                    return;
                }
                m_context.yield();
                QApplication::setOverrideCursor(Qt::WaitCursor);
            }
            if (k % 200 == 0 || k == n) m_progress->fillTo(static_cast<double>(k) / n);
        }
        // The block is sorted already: the list takes it whole, not word by word.
        m_words[i]->setStringList(words);
        m_lists[i]->setCurrentIndex(words.isEmpty() ? -1 : 0);
        m_counts[i]->setText(QString::fromStdString(countLabel(n, false)));
        m_totalLabel->setText(QString::fromStdString(groupedNumber(m_total, 0)));
    }
    finishLoading();
}

void DictionaryEditorWindow::finishLoading() {
    QApplication::restoreOverrideCursor();
    for (QPushButton* b : {m_add, m_rebuild, m_delete})
        b->setEnabled(true);
    setValueText(m_status, {});
    m_current = 0;
    m_loaded = true;
    emit loaded();
}

void DictionaryEditorWindow::aggiungiParola() {
    if (m_rebuilding) return;
    m_insert->show();
    m_entry->show();
    m_entry->clear();
    m_entry->setFocus();
}

void DictionaryEditorWindow::closeEntry() {
    m_insert->hide();
    m_entry->hide();
}

void DictionaryEditorWindow::countEdit(int list, int change) {
    QLabel* count = m_counts[list];
    count->setText(QString::fromStdString(
        countLabel(countLabelNumber(count->text().toStdString()) + change, true)));
    setTextColour(count, kRed);
    m_total += change;
    m_totalLabel->setText(QString::fromStdString(groupedNumber(m_total, 0)));
    setTextColour(m_totalLabel, kRed);
}

void DictionaryEditorWindow::inserisci() {
    if (m_rebuilding || m_entry->isHidden()) return;
    const QString word = m_entry->text().toUpper().trimmed();
    const int list = static_cast<int>(word.size()) - kMinWordLength;
    qsizetype row = 0;
    const auto inList = [&](const std::string&) {
        // Only lengths 3 to 10 have a list; the entry field holds no more than 10 letters.
        if (list < 0 || list >= kLists) return true;
        const QStringList words = m_words[list]->stringList();
        const auto at = std::lower_bound(words.cbegin(), words.cend(), word);
        row = at - words.cbegin();
        return at != words.cend() && *at == word;
    };
    const InsertCheck check = checkInsert(word.toStdString(), inList);
    const std::string message = insertMessage(check, word.toStdString());
    if (check == InsertCheck::Exists) {
        m_context.alerts.avviso(message);
        m_entry->clear();
        return;
    }
    if (check == InsertCheck::Added) {
        m_words[list]->insertRows(static_cast<int>(row), 1);
        m_words[list]->setData(m_words[list]->index(static_cast<int>(row)), word);
    }
    m_context.alerts.avviso(message);
    if (check == InsertCheck::Added) countEdit(list, +1);
    closeEntry();
}

void DictionaryEditorWindow::cancellaParola() {
    if (m_rebuilding) return;
    QComboBox* list = m_lists[m_current];
    const int row = list->currentIndex();
    if (row < 0) {
        m_context.alerts.avviso(
            tr("Selezionare prima una parola da eliminare dal dizionario.").toStdString());
        return;
    }
    const std::string word = list->currentText().toStdString();
    if (!m_context.ask(tr("Si desidera veramente eliminare la parola: %1")
                           .arg(QString::fromStdString(word))
                           .toStdString()))
        return;
    m_words[m_current]->removeRows(row, 1);
    list->setCurrentIndex(-1);
    countEdit(m_current, -1);
    m_context.alerts.avviso(tr("Parola eliminata, cliccare su 'Ricostruzione dizionario' per la "
                               "ricostruzione effettiva del dizionario")
                                .toStdString());
}

void DictionaryEditorWindow::ricreaDizionario() {
    if (m_rebuilding || !m_loaded) return;
    if (!m_context.ask(tr("Attenzione non interrompere assolutamente la fase di creazione del "
                          "dizionario! Si desidera veramente ricreare il dizionario principale?")
                           .toStdString())) {
        m_context.alerts.avviso(tr("Operazione annulata.").toStdString());
        return;
    }
    m_rebuilding = true;
    m_exit->setEnabled(false);
    setValueText(m_status, tr("In corso la scrittura del dizionario ..."));
    m_context.yield();
    // A rebuild that fails changes nothing, the counts included.
    std::array<QString, kLists> counts;
    for (int i = 0; i < kLists; ++i) {
        counts[i] = m_counts[i]->text();
        m_counts[i]->clear();
    }
    WordLists words;
    for (int i = 0; i < kLists; ++i) {
        m_progress->clear();
        m_context.yield();
        const QStringList list = m_words[i]->stringList();
        const auto size = list.size();
        words[i].reserve(static_cast<std::size_t>(size));
        for (qsizetype j = 0; j < size; ++j) {
            if (j % 200 == 0) m_progress->fillTo(static_cast<double>(j) / size, 1);
            words[i].push_back(fileWord(list[j]));
        }
        m_counts[i]->setText(QString::fromStdString(countLabel(size, true)));
        m_progress->clear();
    }
    m_context.files.closeAll();
    const auto path = m_context.dictionary.dictionaryPath();
    const std::string notice =
        rebuiltNotice(path, "Il Griglione - Dizionario " + m_context.state.nomeDizionario);
    std::error_code why;
    if (rebuildDictionary(m_context.folder, m_context.state.numDizionario, notice, words, &why)) {
        setValueText(m_status, tr("Dizionario riscritto correttamente"));
    } else {
        // The old file is still whole and in place; the lists keep the changes for another try.
        setValueText(m_status, {});
        for (int i = 0; i < kLists; ++i)
            m_counts[i]->setText(counts[i]);
        const auto file = std::filesystem::absolute(
                              rebuiltFileName(m_context.folder, m_context.state.numDizionario))
                              .lexically_normal();
        m_context.alerts.avviso(
            tr("Errore 0005: il dizionario non è stato ricreato, impossibile scrivere il file %1 "
               "nella posizione: %2 (%3). Resta in uso il dizionario di prima e le modifiche "
               "restano negli elenchi.")
                .arg(QString::fromStdString(file.filename().string()),
                     QString::fromStdString(file.parent_path().string()),
                     QString::fromStdString(systemReason(why)))
                .toStdString());
    }
    m_context.dictionary.prendidiz();
    m_context.files.closeAll();
    m_exit->setEnabled(true);
    m_rebuilding = false;
}

void DictionaryEditorWindow::uscita() {
    // A load in progress shows the normal pointer whenever it lets this click through, and
    // stops at its next check.
    m_context.yield();
    m_stop = !m_loaded;
    accept();
}

bool DictionaryEditorWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_entry && event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            inserisci();
            return true;
        }
        // Keys that type nothing (arrows, Delete, Tab) keep their usual effect.
        const QString text = key->text();
        if (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab || text.size() != 1 ||
            text[0].unicode() == 0x7f)
            return QDialog::eventFilter(watched, event);
        const char typed = text[0].unicode() < 256 ? static_cast<char>(text[0].unicode()) : 0;
        const EntryKey filtered = filterEntryKey(typed);
        if (filtered.action != EntryKeyAction::Keep) return true;
        if (filtered.key == '\b') return QDialog::eventFilter(watched, event);
        m_entry->insert(QString(QChar(filtered.key)));
        return true;
    }
    const auto list = std::find(m_lists.begin(), m_lists.end(), watched);
    if (list != m_lists.end()) {
        const auto type = event->type();
        if (type == QEvent::KeyPress || type == QEvent::MouseButtonPress ||
            type == QEvent::MouseButtonDblClick || type == QEvent::FocusOut)
            m_current = static_cast<int>(list - m_lists.begin());
    }
    return QDialog::eventFilter(watched, event);
}

void DictionaryEditorWindow::keyPressEvent(QKeyEvent* event) {
    // The window has no cancel button: Escape does not close it.
    if (event->key() == Qt::Key_Escape) return event->accept();
    QDialog::keyPressEvent(event);
}

void DictionaryEditorWindow::reject() {
    // The frame's close box: as "&Uscita", but never in the middle of a rebuild.
    if (m_rebuilding) return;
    m_stop = !m_loaded;
    QDialog::reject();
}

} // namespace griglione
