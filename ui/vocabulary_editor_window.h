// The personal vocabulary editor (Form5): the words of ZarmPriv.<n> in a sorted list, adding and
// deleting words, and "&Torna al gioco", which alone writes the list back to the file.
#pragma once

#include "ui/editor_context.h"

#include <QDialog>

#include <string>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace griglione {

class VocabularyEditorWindow final : public QDialog {
    Q_OBJECT
public:
    VocabularyEditorWindow(EditorContext context, QWidget* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void reject() override;

private:
    void loadWords();
    void nuovaParola();
    void conferma();
    void closeEntry();
    void cancellaParola();
    void help();
    void tornaAlGioco();
    bool listHas(const QString& word) const;

    EditorContext m_context;
    std::string m_rules; // this window's copy of the word rules, read on first use
    bool m_checking = false;

    QListWidget* m_words = nullptr;   // List1
    QLabel* m_hint = nullptr;         // Label2
    QLabel* m_prompt = nullptr;       // Label1
    QLineEdit* m_entry = nullptr;     // Text1
    QPushButton* m_new = nullptr;     // Command3d2
    QPushButton* m_confirm = nullptr; // Command3d4
    QPushButton* m_delete = nullptr;  // Command3d3
    QPushButton* m_back = nullptr;    // Command3d1
};

} // namespace griglione
