#pragma once

#include "framework/core/CFile.h"

namespace keltavlo {

// Operations that open a file for a document return null on failure and fill an optional exception.
// Everything else throws; these functions lead from one to the other.

// What `open` returns; null if it throws a CFileException, with `*failure` filled if it is given.
template <class Open>
std::unique_ptr<CFile> FileOrNull(CFileException* failure, Open open) {
    try {
        return open();
    } catch (const CFileException& exception) {
        if (failure) *failure = exception;
        return nullptr;
    }
}

// What `open` returns for an exception to fill; throws that exception instead of returning null.
template <class Open>
std::unique_ptr<CFile> FileOrThrow(Open open) {
    CFileException failure;
    std::unique_ptr<CFile> file = open(&failure);
    if (!file) throw CFileException(failure);
    return file;
}

} // namespace keltavlo
