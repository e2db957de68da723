// The main dictionary editor (Form9): every word of lengths 3 to 10 in eight sorted drop-down
// lists, adding and deleting words in them, and the rebuild that writes SLESSICO.<n> anew.
#pragma once

#include "ui/editor_context.h"

#include <QDialog>

#include <array>
#include <cstdint>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QStringListModel;

namespace griglione {

class ProgressBox;

class DictionaryEditorWindow final : public QDialog {
    Q_OBJECT
public:
    static constexpr int kLists = 8; // lengths 3 to 10

    DictionaryEditorWindow(EditorContext context, QWidget* parent);

    bool isLoaded() const { return m_loaded; }
    // "&Ricrea dizionario", from its confirmation on.
    void ricreaDizionario();

signals:
    void loaded();

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void reject() override;

private:
    void buildControls();
    void loadWords();
    void finishLoading();
    void aggiungiParola();
    void inserisci();
    void cancellaParola();
    void uscita();
    void closeEntry();
    void countEdit(int list, int change);

    EditorContext m_context;
    std::int32_t m_total = 0;
    int m_current = 0;
    bool m_stop = false;
    bool m_started = false;
    bool m_loaded = false;
    bool m_rebuilding = false;

    std::array<QComboBox*, kLists> m_lists{};        // Combo1(0..7)
    std::array<QStringListModel*, kLists> m_words{}; // what each list holds, in order
    std::array<QLabel*, kLists> m_counts{};          // Label2(0..7)
    QLabel* m_title = nullptr;                       // Label6
    QLabel* m_totalLabel = nullptr;                  // Label4
    QLabel* m_status = nullptr;                      // Label3
    ProgressBox* m_progress = nullptr;               // Picture1
    QLineEdit* m_entry = nullptr;                    // Text1
    QPushButton* m_add = nullptr;                    // Command1
    QPushButton* m_insert = nullptr;                 // Command3
    QPushButton* m_delete = nullptr;                 // Command5
    QPushButton* m_rebuild = nullptr;                // Command4
    QPushButton* m_exit = nullptr;                   // Command2
};

} // namespace griglione
