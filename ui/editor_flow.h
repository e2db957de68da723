// Opening the two vocabulary editors from the main window's menu: the running match is
// abandoned, the editor is shown modally, and a new match starts when it closes.
#pragma once

#include "ui/editor_context.h"

#include <functional>
#include <string>

class QWidget;

namespace griglione {

class EditorFlow {
public:
    // `abandonMatch` clears the traced word, deals the blank board, zeroes the elapsed time and
    // stops both timers; `newMatch` starts a match as "&Nuova Partita" does.
    EditorFlow(EditorContext context, std::function<void()> abandonMatch,
               std::function<void()> newMatch, QWidget* parent);

    // "&Edit vocabolario personale ..."
    void openVocabulary();
    // "&Vocabolario principale ..."
    void openDictionary();

private:
    template <typename Window> void open();

    EditorContext m_context;
    std::function<void()> m_abandonMatch;
    std::function<void()> m_newMatch;
    QWidget* m_parent;
};

} // namespace griglione
