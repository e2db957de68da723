// A list of words that the game fills while the player is elsewhere: it shows its newest entry
// selected, yet tells a screen reader nothing of it unless the list itself has the focus. Entered
// from the keyboard, it has a current word for the reader to read.
#pragma once

#include <QListWidget>

namespace griglione {

class QuietList final : public QListWidget {
    Q_OBJECT
public:
    using QListWidget::QListWidget;

protected:
    void focusInEvent(QFocusEvent* event) override;
    // QListView reports every move of its current entry as a focus change and every selection
    // to the screen reader; from a list the player is not in, that would take the speech away.
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
};

} // namespace griglione
