#pragma once

#include "framework/core/Service.h"

#include <string>

namespace keltavlo {

// Receives a sentence for the user about each archive of which something is left out. Without one, nobody is
// told.
class ArchiveNotes : public Service<ArchiveNotes> {
public:
    virtual void NoteArchive(const std::string& sentence) = 0;
};

} // namespace keltavlo
