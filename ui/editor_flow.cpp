#include "ui/editor_flow.h"

#include "ui/alert_boxes.h"
#include "ui/dictionary_editor_window.h"
#include "ui/vocabulary_editor_window.h"


namespace griglione {

EditorFlow::EditorFlow(EditorContext context, std::function<void()> abandonMatch,
                       std::function<void()> newMatch, QWidget* parent)
    : m_context(std::move(context)), m_abandonMatch(std::move(abandonMatch)),
      m_newMatch(std::move(newMatch)), m_parent(parent) {}

void EditorFlow::openVocabulary() {
    open<VocabularyEditorWindow>();
}

void EditorFlow::openDictionary() {
    open<DictionaryEditorWindow>();
}

template <typename Window> void EditorFlow::open() {
    m_abandonMatch();
    // The editors read the files afresh: no message stays up and no lookup keeps a file open.
    m_context.closeMessages();
    m_context.files.closeAll();
    {
        // A fresh window every time, so nothing of an earlier opening carries over.
        Window window(m_context, m_parent);
        window.setModal(true);
        window.exec();
    }
    m_newMatch();
}

} // namespace griglione
