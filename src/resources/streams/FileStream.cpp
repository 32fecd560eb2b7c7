#include "resources/streams/FileStream.h"

void FileStream::Fail(StreamError error) const {
    // The causes of file exceptions have the same numbers, as far as they go.
    const bool known = error >= StreamError::generic && error <= StreamError::endOfFile;
    const auto cause = known ? static_cast<CFileException::Cause>(error) : CFileException::generic;
    throw CFileException(cause, CFileException::noOsError, GetName());
}

void FileStream::Read(void* buffer, std::size_t count) {
    if (file.Read(buffer, count) != count) throw CFileException(CFileException::endOfFile);
}
