#include "tool/StandardStreams.h"

#include "framework/core/CFile.h"

#include <array>
#include <cerrno>
#include <ostream>
#include <unistd.h>

namespace keltavlo {

void ReadStandardInput(CFile& file) {
    std::array<std::byte, 0x10000> part;
    for (;;) {
        const ssize_t length = read(STDIN_FILENO, part.data(), part.size());
        if (length < 0 && errno == EINTR) continue;
        if (length < 0) throw CFileException::FromErrno(errno, "-");
        if (length == 0) break;
        file.Write(part.data(), static_cast<std::size_t>(length));
    }
    file.Seek(0, CFile::From::begin);
}

void WriteStandardOutput(std::ostream& output, std::span<const std::byte> bytes) {
    output.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

} // namespace keltavlo
