// Opens documents, web addresses and "mailto:" addresses with the desktop's own programs.
#pragma once

#include "core/ports.h"

#include <QUrl>

namespace griglione {

class OutsideOpener final : public Outside {
public:
    void apri(const std::string& target) override;
    // What apri hands to the desktop.
    static QUrl urlOf(const std::string& target);
};

} // namespace griglione
