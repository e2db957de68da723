// The records window (Form4): the fifty best scores, the first-placed name and, for a player in
// first or second place, the link that submits the score to the maker's record page.
#pragma once

#include "records/record_opening.h"

#include <QDialog>

#include <functional>

class QLabel;
class QLineEdit;
class QListWidget;

namespace griglione {

class RecordsWindow final : public QDialog {
    Q_OBJECT
public:
    // `submit` gets the notes and the e-mail address; `closing` runs once, however it closes.
    RecordsWindow(std::function<void(const QString& notes, const QString& email)> submit,
                  std::function<void()> closing, QWidget* parent);

    void fill(const TabellaRecord& table);

    // Drops the window without its closing steps, for an opening that replaces it.
    void discard();

protected:
    void done(int result) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildControls();

    std::function<void(const QString&, const QString&)> m_submit;
    std::function<void()> m_closing;
    QLabel* m_first = nullptr;      // Label1
    QLabel* m_theBest = nullptr;    // Label2
    QListWidget* m_table = nullptr; // List1
    QLabel* m_link = nullptr;       // Label7
    QLineEdit* m_notes = nullptr;   // Text1
    QLineEdit* m_email = nullptr;   // Text2
    QList<QWidget*> m_submission;   // enabled for places 1 and 2 only
};

} // namespace griglione
