#pragma once

#include "resources/streams/OutputStream.h"

#include <string>

namespace keltavlo {

// Texts in the program's own files: u32 n, n bytes, which may include NULs.

inline void WriteText(OutputStream& out, const std::string& text) {
    out.Write(static_cast<std::uint32_t>(text.size()));
    out.Write(text.data(), text.size());
}

inline std::string ReadText(InputStream& in) {
    const auto length = in.Read<std::uint32_t>();
    if (length > in.GetRemaining()) in.FailUnnamed(StreamError::endOfFile);
    std::string text(length, '\0');
    in.Read(text.data(), length);
    return text;
}

} // namespace keltavlo
