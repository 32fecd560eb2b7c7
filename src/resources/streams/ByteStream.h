#pragma once

#include "framework/core/CFile.h"
#include "resources/streams/StreamError.h"

#include <cstdint>
#include <exception>
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
    // Throws the exception of the stream's form for this error, with the stream's name. A sentence tells the
    // user more than the error does.
    [[noreturn]] void Fail(StreamError error, std::string sentence = {}) const {
        std::rethrow_exception(MakeFailure(error, GetName(), std::move(sentence)));
    }
    // The same without the stream's name: for short reads and for kinds of file that go by their documents.
    [[noreturn]] void FailUnnamed(StreamError error, std::string sentence = {}) const {
        std::rethrow_exception(MakeFailure(error, {}, std::move(sentence)));
    }

private:
    // An empty sentence means the error's own.
    virtual std::exception_ptr MakeFailure(StreamError error, std::string name,
                                           std::string sentence) const = 0;
};

} // namespace keltavlo
