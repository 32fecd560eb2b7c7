#pragma once

namespace keltavlo {

// The errors of a stream, numbered alike for both kinds of stream. 2 to 13 are the causes of file exceptions.
enum class StreamError {
    generic = 1,
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
    endOfFile,
    readOnly,
    writeOnly,
    badIndex,
    badClass,
    badSchema
};

} // namespace keltavlo
