#pragma once

#include "framework/core/Service.h"

#include <string>

namespace keltavlo {

// Receives a sentence for the user when part of an archive is skipped. Without a receiver it is lost.
class ArchiveNotes : public Service<ArchiveNotes> {
public:
    virtual void NoteArchive(const std::string& sentence) = 0;
};

} // namespace keltavlo
