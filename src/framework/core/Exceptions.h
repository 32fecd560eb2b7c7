#pragma once

#include <exception>
#include <string>

namespace keltavlo {

// Base of the exceptions that a document catches when it opens or saves. what() is a sentence for the user
// without the file's name; DescribeFailure adds the name.
class CException : public std::exception {
public:
    explicit CException(std::string text, std::string file = {})
        : fileName(std::move(file)), sentence(std::move(text)) {}
    const char* what() const noexcept override { return sentence.c_str(); }

    std::string fileName; // may be empty

private:
    std::string sentence;
};

class CArchiveException : public CException {
public:
    enum Cause { none, generic, readOnly, endOfFile, writeOnly, badIndex, badClass, badSchema };

    // If the text is empty, the cause provides the sentence.
    explicit CArchiveException(Cause cause = none, std::string file = {}, std::string text = {});

    Cause cause;
};

class CFileException : public CException {
public:
    enum Cause {
        none,
        generic,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };
    static constexpr int noOsError = -1;

    explicit CFileException(Cause cause = none, int osErrorNumber = noOsError, std::string file = {});
    // If the text is empty, the cause provides the sentence.
    CFileException(Cause cause, std::string file, std::string text);
    // Makes the exception for an errno value.
    static CFileException FromErrno(int error, std::string file);

    Cause cause;
    int osError;
};

// Memory ran out, or a buffer of fixed size would have to grow.
class CMemoryException : public CException {
public:
    CMemoryException();
    // With a more precise sentence.
    explicit CMemoryException(std::string text) : CException(std::move(text)) {}
};

// Returns a sentence for the user about any exception. Allocates no memory.
const char* SentenceOf(const std::exception& failure);

enum class Direction { opening, saving };

// Returns the message for a failure to open or save `path`: the path and the reason.
// Accepts any std::exception.
std::string DescribeFailure(Direction direction, const std::string& path, const std::exception& failure);

} // namespace keltavlo
