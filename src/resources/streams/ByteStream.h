#pragma once

#include "framework/core/CFile.h"
#include "resources/streams/StreamError.h"

#include <cstdint>
#include <memory>
#include <string>

namespace keltavlo {

// What reading and writing streams share: the file they work on and the way they fail.
class ByteStream {
public:
    virtual ~ByteStream() = default;

    // Full path of the file; empty when it has none, as an entry of an archive.
    virtual std::string GetName() const = 0;
    virtual std::uint64_t GetLength() const = 0;   // bytes
    virtual std::uint64_t GetPosition() const = 0; // from the start of the file
    virtual void Seek(std::int64_t offset, CFile::From from) = 0;
    void Seek(std::uint64_t position) { Seek(static_cast<std::int64_t>(position), CFile::From::begin); }
    // Another file over the same bytes, to be read later than the stream lives.
    virtual std::unique_ptr<CFile> DuplicateFile() const = 0;
    // Throws the exception of the stream's form for this error, with the stream's name.
    [[noreturn]] virtual void Fail(StreamError error) const = 0;
    // The same with a sentence that tells the user more than the error does.
    [[noreturn]] virtual void Fail(StreamError error, std::string sentence) const = 0;
};

} // namespace keltavlo
