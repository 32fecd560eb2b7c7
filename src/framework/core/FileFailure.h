#pragma once

#include "framework/core/CFile.h"

namespace keltavlo {

// Functions that open a file for a document return null on failure and fill an optional exception. Everything
// else throws. The functions below convert between the two.

// Returns what `open` returns. If `open` throws a CFileException, returns null and fills `*failure` unless
// that is null.
template <class Open>
std::unique_ptr<CFile> FileOrNull(CFileException* failure, Open open) {
    try {
        return open();
    } catch (const CFileException& exception) {
        if (failure) *failure = exception;
        return nullptr;
    }
}

// Passes `open` an exception to fill and returns what it returns. If that is null, throws the exception.
template <class Open>
std::unique_ptr<CFile> FileOrThrow(Open open) {
    CFileException failure;
    std::unique_ptr<CFile> file = open(&failure);
    if (!file) throw CFileException(failure);
    return file;
}

} // namespace keltavlo
