#pragma once

#include "resources/streams/OutputStream.h"

namespace keltavlo {

// A stream directly over a file: what clipboard data is read and written with. Fails with CFileException.
class FileStream final : public InputStream, public OutputStream {
public:
    explicit FileStream(CFile& underlying) : file(underlying) {}

    std::string GetName() const override { return file.GetFilePath(); }
    std::uint64_t GetLength() const override { return file.GetLength(); }
    std::uint64_t GetPosition() const override { return file.GetPosition(); }
    using ByteStream::Seek;
    void Seek(std::int64_t offset, CFile::From from) override { file.Seek(offset, from); }
    std::unique_ptr<CFile> DuplicateFile() const override { return file.Duplicate(); }
    [[noreturn]] void Fail(StreamError error) const override;
    [[noreturn]] void Fail(StreamError error, std::string sentence) const override;
    using InputStream::Read;
    void Read(void* buffer, std::size_t count) override;
    using OutputStream::Write;
    void Write(const void* buffer, std::size_t count) override { file.Write(buffer, count); }

private:
    CFile& file;
};

} // namespace keltavlo
