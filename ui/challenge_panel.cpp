#include "ui/challenge_panel.h"

#include "platform/fonts.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace griglione {
namespace {

QPushButton* button(QWidget* parent, const QString& text, const char* name) {
    auto* b = new QPushButton(text, parent);
    b->setObjectName(name);
    b->setAutoDefault(false);
    // As tall as the review's own buttons, with room around the text.
    b->setMinimumSize(b->sizeHint().width() + 16, 28);
    return b;
}

} // namespace

ChallengePanel::ChallengePanel(QWidget* parent) : QWidget(parent) {
    setObjectName("challenge");
    setAccessibleName(tr("Sfida su questo tabellone"));
    m_code = new QLabel(this);
    m_code->setObjectName("LabelCodice");
    m_code->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_code->setFont(courier(10));
    m_status = new QLabel(this);
    m_status->setObjectName("LabelStato");
    auto* copyCodeButton = button(this, tr("Copia c&odice"), "CommandCodice");
    auto* copyLinkButton = button(this, tr("Copia lin&k"), "CommandLink");
    auto* sendButton = button(this, tr("&Invia alla sfida"), "CommandInvia");
    copyCodeButton->setAccessibleName(tr("Copia il codice del tabellone"));
    copyLinkButton->setAccessibleName(tr("Copia il link della sfida"));
    sendButton->setAccessibleName(tr("Invia la partita alla tabella della sfida"));
    connect(copyCodeButton, &QPushButton::clicked, this, &ChallengePanel::copyCode);
    connect(copyLinkButton, &QPushButton::clicked, this, &ChallengePanel::copyLink);
    connect(sendButton, &QPushButton::clicked, this, &ChallengePanel::send);

    auto* row = new QHBoxLayout;
    row->addWidget(m_code, 1);
    row->addWidget(copyCodeButton);
    row->addWidget(copyLinkButton);
    row->addWidget(sendButton);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 0, 12, 10);
    layout->setSpacing(2);
    layout->addLayout(row);
    layout->addWidget(m_status);
}

void ChallengePanel::setCode(const QString& code) {
    m_code->setText(tr("Codice: %1").arg(code));
    m_code->setAccessibleName(tr("Codice del tabellone: %1").arg(code));
    setStatus({});
}

void ChallengePanel::setStatus(const QString& status) {
    m_status->setText(status);
    m_status->setAccessibleName(status);
}

QSize ChallengePanel::sizeHint() const {
    return layout()->sizeHint();
}

} // namespace griglione
