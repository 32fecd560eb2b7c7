#include "resources/streams/FileStream.h"

namespace keltavlo {

namespace {

// File exceptions number their causes the same way, but have fewer of them.
CFileException::Cause CauseOf(StreamError error) {
    const bool known = error >= StreamError::generic && error <= StreamError::endOfFile;
    return known ? static_cast<CFileException::Cause>(error) : CFileException::generic;
}

} // namespace

void FileStream::Fail(StreamError error) const {
    throw CFileException(CauseOf(error), CFileException::noOsError, GetName());
}

void FileStream::Fail(StreamError error, std::string sentence) const {
    throw CFileException(CauseOf(error), GetName(), std::move(sentence));
}

void FileStream::Read(void* buffer, std::size_t count) {
    if (file.Read(buffer, count) != count) throw CFileException(CFileException::endOfFile);
}

} // namespace keltavlo
