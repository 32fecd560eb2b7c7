#include "resources/streams/ArchiveStream.h"

namespace keltavlo {

namespace {

CArchiveException::Cause CauseOf(StreamError error) {
    switch (error) {
    case StreamError::endOfFile:
        return CArchiveException::endOfFile;
    case StreamError::readOnly:
        return CArchiveException::readOnly;
    case StreamError::writeOnly:
        return CArchiveException::writeOnly;
    case StreamError::badIndex:
        return CArchiveException::badIndex;
    case StreamError::badClass:
        return CArchiveException::badClass;
    case StreamError::badSchema:
        return CArchiveException::badSchema;
    default:
        return CArchiveException::generic;
    }
}

} // namespace

std::uint64_t ArchiveStream::GetLength() const {
    return FlushedFile().GetLength();
}

std::uint64_t ArchiveStream::GetPosition() const {
    return FlushedFile().GetPosition();
}

void ArchiveStream::Seek(std::int64_t offset, CFile::From from) {
    FlushedFile().Seek(offset, from);
}

void ArchiveStream::Read(void* buffer, std::size_t count) {
    if (archive.Read(buffer, count) != count) FailUnnamed(StreamError::endOfFile);
}

std::exception_ptr ArchiveStream::MakeFailure(StreamError error, std::string name,
                                              std::string sentence) const {
    return std::make_exception_ptr(CArchiveException(CauseOf(error), std::move(name), std::move(sentence)));
}

// Returns the file itself at the archive's position.
CFile& ArchiveStream::FlushedFile() const {
    archive.Flush();
    return archive.GetFile();
}

} // namespace keltavlo
