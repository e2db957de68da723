#include "ui/name_validator.h"

#include "core/ansi_text.h"

#include <QLineEdit>

namespace griglione {

NameValidator::NameValidator(QLineEdit* box) : QValidator(box), m_current(box->text()) {
    // The box already holds the edited text while it asks; the text before the edit is kept here.
    connect(box, &QLineEdit::textChanged, this, [this](const QString& text) { m_current = text; });
}

QValidator::State NameValidator::validate(QString& input, int&) const {
    if (!fitsAnsi(input.toStdString())) return Invalid;
    // The records file splits its lines at the first comma: a name holding one would lose its
    // scores. A name read with a comma may still be edited, but gains none.
    if (input.count(',') > m_current.count(',')) return Invalid;
    // A change that does not make a long name longer is allowed.
    if (input.size() > kTypedNameLength && input.size() > m_current.size()) return Invalid;
    return Acceptable;
}

void NameValidator::setName(QLineEdit* box, const QString& name) {
    if (auto* validator = box->findChild<NameValidator*>()) validator->m_current = name;
    box->setText(name);
}

QString upperName(const QString& name) {
    return QString::fromStdString(upperAnsiText(name.toStdString()));
}

} // namespace griglione
