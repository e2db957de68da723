#include "ui/records_window.h"

#include "core/ansi_text.h"
#include "platform/fonts.h"
#include "ui/accessibility.h"
#include "ui/colours.h"
#include "ui/control_names.h"
#include "ui/link_cursor.h"
#include "ui/message_window.h"
#include "ui/twips.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>

namespace griglione {
namespace {

const QColor kGold(255, 204, 0);

QLabel* label(QWidget* parent, const char* name, const QString& text, const QRect& geometry,
              const QColor& colour) {
    auto* l = new QLabel(text, parent);
    l->setObjectName(name);
    l->setGeometry(geometry);
    QPalette palette = l->palette();
    palette.setColor(QPalette::WindowText, colour);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(110, 140, 110));
    l->setPalette(palette);
    return l;
}

QLineEdit* textBox(QWidget* parent, const char* name, const QString& text, const QRect& geometry) {
    auto* box = new QLineEdit(text, parent);
    box->setObjectName(name);
    box->setGeometry(geometry);
    // The standard arrow, as over the rest of the window.
    box->setCursor(Qt::ArrowCursor);
    return box;
}

bool activates(QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease)
        return static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    if (event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
}

} // namespace

RecordsWindow::RecordsWindow(std::function<void(const QString&, const QString&)> submit,
                             std::function<void()> closing, QWidget* parent)
    : QDialog(parent), m_submit(std::move(submit)), m_closing(std::move(closing)) {
    setObjectName("Form4");
    setWindowTitle(tr("Il Griglione - Hiscores Table"));
    setAttribute(Qt::WA_DeleteOnClose);
    setFixedSize(px(6150), px(6135));
    setAutoFillBackground(true);
    QPalette palette = this->palette();
    palette.setColor(QPalette::Window, kDarkGreen);
    palette.setColor(QPalette::WindowText, Qt::white);
    setPalette(palette);
    buildControls();
    centreOnScreen(this);
}

void RecordsWindow::buildControls() {
    label(this, "Label3", tr("Il Griglione : I migliori punteggi"), twipsRect(390, 60, 5400, 435),
          kLinkYellow)
        ->setFont(tahoma(14, true));
    m_first = label(this, "Label1", "Brivo The Best", twipsRect(390, 555, 3600, 375), Qt::white);
    m_first->setFont(tahoma(12, true));
    m_first->setAccessibleDescription(tr("Primo in classifica"));
    m_theBest = label(this, "Label2", tr("The Best"), twipsRect(390, 930, 1500, 375), kGold);
    m_theBest->setFont(tahoma(12, true));
    m_theBest->installEventFilter(this);

    m_table = new QListWidget(this);
    m_table->setObjectName("List1");
    m_table->setGeometry(twipsRect(420, 1410, 3585, 3180));
    m_table->setFont(courier(8));
    m_table->setAccessibleName(tr("Tabella records"));

    auto* close = new QPushButton(tr("&Chiudi"), this);
    close->setObjectName("Command1");
    close->setGeometry(twipsRect(4230, 570, 1335, 375));
    close->setToolTip(tr("Torna al gioco."));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::close);

    auto* explanation =
        label(this, "Label5",
              tr("Se hai fatto il record massimo puoi cliccare il link sottostante, "
                 "verrà aperta una finestra del browser che ti consentirà di "
                 "pubblicare nella Rete il tuo risultato (Compila anche il campo "
                 "E-Mail)."),
              twipsRect(420, 4650, 5610, 510), Qt::white);
    explanation->setWordWrap(true);
    explanation->setFont(tahoma(7.5));
    auto* emailCaption =
        label(this, "Label4", tr("Mia E-Mail:"), twipsRect(420, 5190, 825, 255), Qt::white);
    m_email = textBox(this, "Text2", "", twipsRect(1260, 5160, 2520, 285));
    m_email->setAccessibleName(tr("Mia E-Mail"));
    m_email->setPlaceholderText(tr("nome@dominio.it"));
    auto* notesCaption =
        label(this, "Label6", tr("Note sul punteggio:"), twipsRect(450, 5490, 795, 435), Qt::white);
    notesCaption->setWordWrap(true);
    m_notes = textBox(this, "Text1", tr("Sono il migliore"), twipsRect(1260, 5580, 2520, 285));
    m_notes->setAccessibleName(tr("Note sul punteggio"));
    m_link = label(this, "Label7", tr("Registra record in Internet"),
                   twipsRect(3870, 5580, 2250, 285), kLinkYellow);
    QFont underlined = m_link->font();
    underlined.setUnderline(true);
    m_link->setFont(underlined);
    m_link->setToolTip(
        tr("Clicca per registrare questo punteggio nella tabella mondiale su Internet"));
    m_link->setCursor(linkCursor());
    m_link->setFocusPolicy(Qt::StrongFocus);
    // A label draws no focus frame of its own; the keyboard user must see where Enter goes.
    m_link->setStyleSheet("QLabel:focus { border: 1px dotted palette(window-text); }");
    m_link->installEventFilter(this);
    presentAsLink(m_link);

    m_submission = {m_notes, m_email, m_link, emailCaption, notesCaption};
    for (QWidget* w : m_submission)
        w->setEnabled(false);
    setTabOrder(close, m_table);
    setTabOrder(m_table, m_email);
    setTabOrder(m_email, m_notes);
    setTabOrder(m_notes, m_link);
}

void RecordsWindow::fill(const TabellaRecord& table) {
    for (const std::string& line : table.righe)
        m_table->addItem(QString::fromStdString(fromAnsi(line)));
    setValueText(m_first, QString::fromStdString(fromAnsi(table.primo)));
    m_table->setCurrentRow(table.selezione);
    for (QWidget* w : m_submission)
        w->setEnabled(table.invioPossibile);
}

void RecordsWindow::discard() {
    m_closing = nullptr;
    delete this;
}

void RecordsWindow::done(int result) {
    // "&Chiudi", "The Best", the frame and Escape all end here, each running the steps once.
    if (auto closing = std::exchange(m_closing, nullptr)) closing();
    QDialog::done(result);
}

bool RecordsWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_theBest && activates(event)) {
        close();
        return true;
    }
    if (watched == m_link && m_link->isEnabled() && activates(event)) {
        m_submit(m_notes->text(), m_email->text());
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace griglione
