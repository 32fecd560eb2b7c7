#pragma once

#include <exception>
#include <string>

namespace keltavlo {

// Base of the failures that a document's open and save steps catch. what() is a sentence for the user without
// the file's name; DescribeFailure adds the name.
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

    // An empty text means the sentence of the cause.
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
    // An empty text means the sentence of the cause.
    CFileException(Cause cause, std::string file, std::string text);
    // The exception for an errno value.
    static CFileException FromErrno(int error, std::string file);

    Cause cause;
    int osError;
};

// A buffer that may not grow was asked to, or memory ran out.
class CMemoryException : public CException {
public:
    CMemoryException();
    // With a sentence that tells more.
    explicit CMemoryException(std::string text) : CException(std::move(text)) {}
};

// The sentence about any failure for the user. Takes no memory.
const char* SentenceOf(const std::exception& failure);

enum class Direction { opening, saving };

// The sentence shown when opening or saving `path` fails: names the path, says what went wrong. Any
// std::exception will do.
std::string DescribeFailure(Direction direction, const std::string& path, const std::exception& failure);

} // namespace keltavlo
