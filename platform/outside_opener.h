// Opens documents, web addresses and "mailto:" addresses with the desktop's own programs.
#pragma once

#include "core/ports.h"

namespace griglione {

class OutsideOpener final : public Outside {
public:
    void apri(const std::string& target) override;
};

} // namespace griglione
