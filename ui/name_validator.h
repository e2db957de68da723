// What the player may type in the name box: at most 12 characters, each one a Windows-1252
// character other than the comma, so the name shown is the name stored. A longer name read from
// the settings file stays whole: typing may shorten it but never lengthen it.
#pragma once

#include <QValidator>

class QLineEdit;

namespace griglione {

inline constexpr int kTypedNameLength = 12;

class NameValidator final : public QValidator {
    Q_OBJECT
public:
    explicit NameValidator(QLineEdit* box);
    State validate(QString& input, int& position) const override;

    // Puts a name in the box whole, however long: the box must not start from a text it calls
    // invalid, or Qt would no longer undo the edits it refuses.
    static void setName(QLineEdit* box, const QString& name);

private:
    QString m_current;
};

// The name in upper case by the one Windows-1252 rule the settings file is read with.
QString upperName(const QString& name);

} // namespace griglione
