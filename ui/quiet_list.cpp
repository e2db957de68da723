#include "ui/quiet_list.h"

#include <QFocusEvent>

namespace griglione {

// Without a current entry a reader announces the list alone, never a word of it.
void QuietList::focusInEvent(QFocusEvent* event) {
    QListWidget::focusInEvent(event);
    if (event->reason() != Qt::MouseFocusReason && currentRow() < 0 && count() > 0)
        setCurrentRow(0);
}

void QuietList::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    if (hasFocus())
        QListWidget::currentChanged(current, previous);
    else
        QAbstractItemView::currentChanged(current, previous);
}

void QuietList::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    if (hasFocus())
        QListWidget::selectionChanged(selected, deselected);
    else
        QAbstractItemView::selectionChanged(selected, deselected);
}

} // namespace griglione
