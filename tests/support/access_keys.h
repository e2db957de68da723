// Finds keys that two controls of one window share: an access key ('&' letter) or shortcut that
// belongs to two of them only moves the focus back and forth at each press, so neither acts.
#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QStringList>

namespace griglione::testing {

using KeyOwners = QMap<QString, QStringList>;

inline QStringList clashes(const KeyOwners& owners) {
    QStringList found;
    for (auto it = owners.begin(); it != owners.end(); ++it)
        if (it->size() > 1) found << it.key() + ": " + it->join(", ");
    return found;
}

// The keys of a window: its buttons' live shortcuts (the access key unless taken away), labels
// that lead to a buddy, group boxes, the menu bar's titles and every action's shortcut.
inline QStringList accessKeyClashes(QWidget* window) {
    KeyOwners owners;
    const auto add = [&](const QKeySequence& key, const QString& owner) {
        if (!key.isEmpty()) owners[key.toString()] << owner;
    };
    for (auto* button : window->findChildren<QAbstractButton*>())
        if (!button->isHidden()) add(button->shortcut(), button->text());
    for (auto* label : window->findChildren<QLabel*>())
        if (label->buddy()) add(QKeySequence::mnemonic(label->text()), label->text());
    for (auto* box : window->findChildren<QGroupBox*>())
        add(QKeySequence::mnemonic(box->title()), box->title());
    for (auto* bar : window->findChildren<QMenuBar*>())
        for (QAction* menu : bar->actions())
            add(QKeySequence::mnemonic(menu->text()), menu->text());
    for (auto* action : window->findChildren<QAction*>())
        add(action->shortcut(), action->text());
    return clashes(owners);
}

// The access keys of the items of one drop-down menu, which are chosen among themselves while
// it is open.
inline QStringList accessKeyClashes(QMenu* menu) {
    KeyOwners owners;
    for (QAction* item : menu->actions())
        if (!item->isSeparator())
            owners[QKeySequence::mnemonic(item->text()).toString()] << item->text();
    owners.remove(QString());
    return clashes(owners);
}

} // namespace griglione::testing
