#include "ui/quiet_list.h"

namespace griglione {

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
