#pragma once

#include "framework/core/CFile.h"

#include <array>
#include <cstring>

namespace keltavlo {

// A buffer over a file for reading or writing it from front to back: an archive either loads or stores.
class CArchive {
public:
    enum Mode { load, store };

    CArchive(CFile& underlying, Mode direction) : file(underlying), mode(direction) {}
    CArchive(const CArchive&) = delete;
    CArchive& operator=(const CArchive&) = delete;

    CFile& GetFile() const { return file; }
    bool IsStoring() const { return mode == store; }

    // Reads up to `count` bytes. Returns fewer only at the end of the file.
    std::size_t Read(void* target, std::size_t count) {
        if (count == 0) return 0; // an empty target may be null
        if (count <= filled - used) {
            std::memcpy(target, buffer.data() + used, count);
            used += count;
            return count;
        }
        return ReadThrough(static_cast<std::byte*>(target), count);
    }
    void Write(const void* source, std::size_t count) {
        if (count == 0) return;
        if (count <= buffer.size() - used) {
            std::memcpy(buffer.data() + used, source, count);
            used += count;
        } else {
            WriteThrough(source, count);
        }
    }
    // Moves the file to the archive's position: writes what is buffered, or seeks back over what was
    // read ahead.
    void Flush();

private:
    std::size_t ReadThrough(std::byte* target, std::size_t count);
    void WriteThrough(const void* source, std::size_t count);

    CFile& file;
    Mode mode;
    std::size_t used = 0;   // loading: bytes handed out; storing: bytes collected
    std::size_t filled = 0; // loading only: bytes in the buffer
    std::array<std::byte, 16384> buffer;
};

} // namespace keltavlo
