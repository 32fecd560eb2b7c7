#pragma once

#include "framework/core/CMemFile.h"
#include "resources/streams/ArchiveStream.h"

namespace keltavlo {

// Calls `read` with a stream over an archive, which starts at the file's position, as for reading a document.
template <class Read>
void ReadThroughArchive(CFile& file, Read read) {
    CArchive archive(file, CArchive::load);
    ArchiveStream stream(archive);
    read(static_cast<InputStream&>(stream));
}

// Returns the bytes that `write` writes to a stream over an archive.
template <class Write>
std::vector<std::byte> WriteThroughArchive(Write write) {
    CMemFile file;
    CArchive archive(file, CArchive::store);
    ArchiveStream stream(archive);
    write(static_cast<OutputStream&>(stream));
    archive.Flush();
    return file.Detach();
}

} // namespace keltavlo
