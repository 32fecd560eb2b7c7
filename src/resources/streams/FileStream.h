#pragma once

#include "resources/streams/OutputStream.h"

namespace keltavlo {

// A stream directly over a file, for clipboard data. Fails with CFileException.
class FileStream final : public InputStream, public OutputStream {
public:
    explicit FileStream(CFile& underlying) : file(underlying) {}

    std::string GetName() const override { return file.GetFilePath(); }
    std::uint64_t GetLength() const override { return file.GetLength(); }
    std::uint64_t GetPosition() const override { return file.GetPosition(); }
    using ByteStream::Seek;
    void Seek(std::int64_t offset, CFile::From from) override { file.Seek(offset, from); }
    std::unique_ptr<CFile> DuplicateFile() const override { return file.Duplicate(); }
    using InputStream::Read;
    void Read(void* buffer, std::size_t count) override {
        if (file.Read(buffer, count) != count) FailUnnamed(StreamError::endOfFile);
    }
    using OutputStream::Write;
    void Write(const void* buffer, std::size_t count) override { file.Write(buffer, count); }

private:
    std::exception_ptr MakeFailure(StreamError error, std::string name, std::string sentence) const override {
        return std::make_exception_ptr(CFileException(CauseOf(error), std::move(name), std::move(sentence)));
    }
    // File exceptions use the same numbers for their causes but have fewer of them.
    static CFileException::Cause CauseOf(StreamError error) {
        const bool known = error >= StreamError::generic && error <= StreamError::endOfFile;
        return known ? static_cast<CFileException::Cause>(error) : CFileException::generic;
    }

    CFile& file;
};

} // namespace keltavlo
