#include "ui/quiet_list.h"

#include <QAccessible>
#include <QFocusEvent>
#include <QTimer>

namespace griglione {

// Without a current entry a reader announces the list alone, never a word of it.
void QuietList::focusInEvent(QFocusEvent* event) {
    QListWidget::focusInEvent(event);
    if (event->reason() != Qt::MouseFocusReason && currentRow() < 0 && count() > 0)
        setCurrentRow(0);
    // The list's own focus reaches the reader after this, and would leave it on the list: the
    // current word's focus is told once more after it.
    QTimer::singleShot(0, this, [this] {
        if (!hasFocus() || currentRow() < 0) return;
        QAccessibleEvent focus(this, QAccessible::Focus);
        focus.setChild(currentRow());
        QAccessible::updateAccessibility(&focus);
    });
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
