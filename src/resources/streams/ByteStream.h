#pragma once

#include "framework/core/CFile.h"
#include "resources/streams/StreamError.h"

#include <cstdint>
#include <exception>
#include <memory>
#include <string>

namespace keltavlo {

// The common part of reading and writing streams: their file and their errors.
class ByteStream {
public:
    virtual ~ByteStream() = default;

    // Returns the full path of the file, or an empty one if it has none, as an archive entry.
    virtual std::string GetName() const = 0;
    virtual std::uint64_t GetLength() const = 0;   // bytes
    virtual std::uint64_t GetPosition() const = 0; // from the start of the file
    virtual void Seek(std::int64_t offset, CFile::From from) = 0;
    void Seek(std::uint64_t position) { Seek(static_cast<std::int64_t>(position), CFile::From::begin); }
    // Returns another file over the same bytes, which may outlive the stream.
    virtual std::unique_ptr<CFile> DuplicateFile() const = 0;
    // Throws the stream's kind of exception for this error, with the stream's name. `sentence` is a more
    // precise message for the user.
    [[noreturn]] void Fail(StreamError error, std::string sentence = {}) const {
        std::rethrow_exception(MakeFailure(error, GetName(), std::move(sentence)));
    }
    // Does the same without the stream's name, for short reads and for kinds of file that are identified by
    // their documents.
    [[noreturn]] void FailUnnamed(StreamError error, std::string sentence = {}) const {
        std::rethrow_exception(MakeFailure(error, {}, std::move(sentence)));
    }

private:
    // If the sentence is empty, the error provides it.
    virtual std::exception_ptr MakeFailure(StreamError error, std::string name,
                                           std::string sentence) const = 0;
};

} // namespace keltavlo
