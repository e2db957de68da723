// Plain message boxes under the program's title, centred on the window that raised them, and
// the fatal ones that end the program.
#pragma once

#include "core/ports.h"

#include <string>

class QWidget;

namespace griglione {

inline constexpr const char* kProgramTitle = "Il Griglione";

// An OK / Annulla box over the window in front; true for OK.
bool askOkCancel(const std::string& text);

class AlertBoxes final : public Alerts {
public:
    explicit AlertBoxes(QWidget* parent = nullptr) : m_parent(parent) {}
    void setParent(QWidget* parent) { m_parent = parent; }

    void avviso(const std::string& testo) override;
    void fatale(const std::string& testo) override;

private:
    QWidget* m_parent;
};

} // namespace griglione
