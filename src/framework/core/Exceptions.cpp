#include "framework/core/Exceptions.h"

#include "framework/core/Path.h"

#include <array>
#include <cerrno>
#include <new>

namespace keltavlo {

namespace {

constexpr const char* memorySentence = "There is not enough memory.";

std::string ArchiveSentence(CArchiveException::Cause cause) {
    static constexpr std::array sentences{
        "No error occurred.",
        "This kind of file does not support the operation.",
        "This kind of file can only be read.",
        "The file ends too early.",
        "This kind of file can only be written.",
        "The file has a size, count or encoding that its format does not allow.",
        "The file is not of the expected format.",
        "The file is of a version that is not supported.",
    };
    return sentences.at(static_cast<std::size_t>(cause));
}

std::string FileSentence(CFileException::Cause cause) {
    static constexpr std::array sentences{
        "No error occurred.",
        "The file could not be accessed.",
        "The file was not found.",
        "The path does not exist.",
        "Too many files are open.",
        "Access to the file was denied.",
        "This is not an ordinary file.",
        "The current folder cannot be removed.",
        "The folder is full.",
        "The file has no such position.",
        "The device reported an error.",
        "Another program is using the file.",
        "Part of the file is locked.",
        "The disk is full.",
        "The file ends too early.",
    };
    return sentences.at(static_cast<std::size_t>(cause));
}

CFileException::Cause CauseOfErrno(int error) {
    switch (error) {
    case ENOENT:
        return CFileException::fileNotFound;
    case ENOTDIR:
    case ENAMETOOLONG:
    case ELOOP:
        return CFileException::badPath;
    case EMFILE:
    case ENFILE:
        return CFileException::tooManyOpenFiles;
    case EACCES:
    case EPERM:
    case EROFS:
        return CFileException::accessDenied;
    case EISDIR:
    case ENXIO:
        return CFileException::invalidFile;
    case EIO:
        return CFileException::hardIO;
    case EBUSY:
    case ETXTBSY:
        return CFileException::sharingViolation;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return CFileException::diskFull;
    default:
        return CFileException::generic;
    }
}

} // namespace

CArchiveException::CArchiveException(Cause causeOfFailure, std::string file)
    : CException(ArchiveSentence(causeOfFailure), std::move(file)), cause(causeOfFailure) {}

CArchiveException::CArchiveException(Cause causeOfFailure, std::string file, std::string text)
    : CException(std::move(text), std::move(file)), cause(causeOfFailure) {}

CFileException::CFileException(Cause causeOfFailure, int osErrorNumber, std::string file)
    : CException(FileSentence(causeOfFailure), std::move(file)), cause(causeOfFailure),
      osError(osErrorNumber) {}

CFileException::CFileException(Cause causeOfFailure, std::string file, std::string text)
    : CException(std::move(text), std::move(file)), cause(causeOfFailure), osError(noOsError) {}

CFileException CFileException::FromErrno(int error, std::string file) {
    return CFileException(CauseOfErrno(error), error, std::move(file));
}

CMemoryException::CMemoryException() : CException(memorySentence) {}

// The standard library's own texts are not sentences for people.
const char* SentenceOf(const std::exception& failure) {
    return dynamic_cast<const std::bad_alloc*>(&failure) ? memorySentence : failure.what();
}

std::string DescribeFailure(Direction direction, const std::string& path, const std::exception& failure) {
    const char* verb = direction == Direction::opening ? "open" : "save";
    return "Cannot " + std::string(verb) + " \"" + ToDisplayPath(path) + "\".\n" + SentenceOf(failure);
}

} // namespace keltavlo
