#pragma once

#include "framework/core/CFile.h"

#include <exception>
#include <memory>
#include <zip.h>

namespace keltavlo {

// The bytes of a ZIP file for libzip, so that the file may be in another archive. libzip is written in C, so
// no exception may pass through it: the file's first one is kept for RethrowFailure.
class ZipBytes {
public:
    explicit ZipBytes(std::unique_ptr<CFile> zipFile);
    ~ZipBytes();
    ZipBytes(const ZipBytes&) = delete;
    ZipBytes& operator=(const ZipBytes&) = delete;

    // Opens the bytes as an archive. On failure, returns null and stores the reason in `openError`. The
    // archive must be discarded before this object is destroyed.
    zip_t* OpenArchive(zip_error_t& openError);
    // Throws what the file threw since the last call, if anything.
    void RethrowFailure();

private:
    static zip_int64_t Call(void* bytes, void* data, zip_uint64_t length, zip_source_cmd_t command);
    zip_int64_t Answer(void* data, zip_uint64_t length, zip_source_cmd_t command);
    zip_int64_t Seek(void* data, zip_uint64_t length);
    zip_int64_t TellStatus(void* data, zip_uint64_t length);

    std::unique_ptr<CFile> file;
    zip_error_t error;
    std::exception_ptr failure;
};

} // namespace keltavlo
