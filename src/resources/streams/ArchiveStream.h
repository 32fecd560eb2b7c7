#pragma once

#include "framework/core/CArchive.h"
#include "resources/streams/OutputStream.h"

namespace keltavlo {

// A stream over an archive, for a document's Serialize. Fails with CArchiveException.
class ArchiveStream final : public InputStream, public OutputStream {
public:
    explicit ArchiveStream(CArchive& underlying) : archive(underlying) {}

    std::string GetName() const override { return archive.GetFile().GetFilePath(); }
    std::uint64_t GetLength() const override;
    std::uint64_t GetPosition() const override;
    using ByteStream::Seek;
    void Seek(std::int64_t offset, CFile::From from) override;
    std::unique_ptr<CFile> DuplicateFile() const override { return archive.GetFile().Duplicate(); }
    using InputStream::Read;
    void Read(void* buffer, std::size_t count) override;
    using OutputStream::Write;
    void Write(const void* buffer, std::size_t count) override { archive.Write(buffer, count); }

private:
    std::exception_ptr MakeFailure(StreamError error, std::string name, std::string sentence) const override;
    CFile& FlushedFile() const;

    CArchive& archive;
};

} // namespace keltavlo
