#include "framework/core/Exceptions.h"

#include "framework/core/Path.h"

#include <cerrno>
#include <new>

namespace keltavlo {

namespace {

constexpr const char* memorySentence = "There is not enough memory.";

template <class Cause>
struct SentenceRow {
    Cause cause;
    const char* sentence;
};

constexpr const char* noErrorSentence = "No error occurred.";
constexpr const char* endSentence = "The file ends too early.";

constexpr SentenceRow<CArchiveException::Cause> archiveSentences[] = {
    {CArchiveException::none, noErrorSentence},
    {CArchiveException::generic, "This kind of file does not support the operation."},
    {CArchiveException::readOnly, "This kind of file can only be read."},
    {CArchiveException::endOfFile, endSentence},
    {CArchiveException::writeOnly, "This kind of file can only be written."},
    {CArchiveException::badIndex, "The file has a size, count or encoding that its format does not allow."},
    {CArchiveException::badClass, "The file is not of the expected format."},
    {CArchiveException::badSchema, "The file is of a version that is not supported."},
};

constexpr SentenceRow<CFileException::Cause> fileSentences[] = {
    {CFileException::none, noErrorSentence},
    {CFileException::generic, "The file could not be accessed."},
    {CFileException::fileNotFound, "The file was not found."},
    {CFileException::badPath, "The path does not exist."},
    {CFileException::tooManyOpenFiles, "Too many files are open."},
    {CFileException::accessDenied, "Access to the file was denied."},
    {CFileException::invalidFile, "This is not an ordinary file."},
    {CFileException::removeCurrentDir, "The current folder cannot be removed."},
    {CFileException::directoryFull, "The folder is full."},
    {CFileException::badSeek, "The file has no such position."},
    {CFileException::hardIO, "The device reported an error."},
    {CFileException::sharingViolation, "Another program is using the file."},
    {CFileException::lockViolation, "Part of the file is locked."},
    {CFileException::diskFull, "The disk is full."},
    {CFileException::endOfFile, endSentence},
};

// Whether the table has a row for each cause up to the last one, in their order.
template <class Cause, std::size_t count>
constexpr bool IsWhole(const SentenceRow<Cause> (&rows)[count], Cause last) {
    for (std::size_t i = 0; i < count; ++i)
        if (rows[i].cause != static_cast<Cause>(i)) return false;
    return rows[count - 1].cause == last;
}
static_assert(IsWhole(archiveSentences, CArchiveException::badSchema));
static_assert(IsWhole(fileSentences, CFileException::endOfFile));

template <class Cause, std::size_t count>
std::string TextOr(std::string text, const SentenceRow<Cause> (&rows)[count], Cause cause) {
    return text.empty() ? rows[cause].sentence : std::move(text);
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

CArchiveException::CArchiveException(Cause causeOfFailure, std::string file, std::string text)
    : CException(TextOr(std::move(text), archiveSentences, causeOfFailure), std::move(file)),
      cause(causeOfFailure) {}

CFileException::CFileException(Cause causeOfFailure, int osErrorNumber, std::string file)
    : CException(TextOr({}, fileSentences, causeOfFailure), std::move(file)), cause(causeOfFailure),
      osError(osErrorNumber) {}

CFileException::CFileException(Cause causeOfFailure, std::string file, std::string text)
    : CException(TextOr(std::move(text), fileSentences, causeOfFailure), std::move(file)),
      cause(causeOfFailure), osError(noOsError) {}

CFileException CFileException::FromErrno(int error, std::string file) {
    return CFileException(CauseOfErrno(error), error, std::move(file));
}

CMemoryException::CMemoryException() : CException(memorySentence) {}

// The texts of the standard library are not sentences for users.
const char* SentenceOf(const std::exception& failure) {
    return dynamic_cast<const std::bad_alloc*>(&failure) ? memorySentence : failure.what();
}

std::string DescribeFailure(Direction direction, const std::string& path, const std::exception& failure) {
    const char* verb = direction == Direction::opening ? "open" : "save";
    return "Cannot " + std::string(verb) + " \"" + ToDisplayPath(path) + "\".\n" + SentenceOf(failure);
}

} // namespace keltavlo
