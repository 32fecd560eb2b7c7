#include "tool/archives/ZipBytes.h"

#include <utility>

namespace keltavlo {

ZipBytes::ZipBytes(std::unique_ptr<CFile> zipFile) : file(std::move(zipFile)) {
    zip_error_init(&error);
}

ZipBytes::~ZipBytes() {
    zip_error_fini(&error);
}

zip_t* ZipBytes::OpenArchive(zip_error_t& openError) {
    zip_source_t* source = zip_source_function_create(&ZipBytes::Call, this, &openError);
    if (!source) return nullptr;
    zip_t* archive = zip_open_from_source(source, ZIP_RDONLY, &openError);
    if (!archive) zip_source_free(source);
    return archive;
}

void ZipBytes::RethrowFailure() {
    if (failure) std::rethrow_exception(std::exchange(failure, nullptr));
}

zip_int64_t ZipBytes::Call(void* bytes, void* data, zip_uint64_t length, zip_source_cmd_t command) {
    auto& self = *static_cast<ZipBytes*>(bytes);
    try {
        return self.Answer(data, length, command);
    } catch (...) {
        if (!self.failure) self.failure = std::current_exception();
        zip_error_set(&self.error, ZIP_ER_READ, 0);
        return -1;
    }
}

zip_int64_t ZipBytes::Answer(void* data, zip_uint64_t length, zip_source_cmd_t command) {
    switch (command) {
    case ZIP_SOURCE_OPEN:
        file->Seek(0, CFile::From::begin);
        return 0;
    case ZIP_SOURCE_READ:
        return static_cast<zip_int64_t>(file->Read(data, length));
    case ZIP_SOURCE_SEEK:
        return Seek(data, length);
    case ZIP_SOURCE_TELL:
        return static_cast<zip_int64_t>(file->GetPosition());
    case ZIP_SOURCE_STAT:
        return TellStatus(data, length);
    case ZIP_SOURCE_ERROR:
        return zip_error_to_data(&error, data, length);
    case ZIP_SOURCE_SUPPORTS:
        return ZIP_SOURCE_SUPPORTS_SEEKABLE;
    case ZIP_SOURCE_CLOSE:
    case ZIP_SOURCE_FREE: // this object belongs to its reader
        return 0;
    default:
        zip_error_set(&error, ZIP_ER_OPNOTSUPP, 0);
        return -1;
    }
}

zip_int64_t ZipBytes::Seek(void* data, zip_uint64_t length) {
    const zip_int64_t target =
        zip_source_seek_compute_offset(file->GetPosition(), file->GetLength(), data, length, &error);
    if (target < 0) return -1;
    file->Seek(target, CFile::From::begin);
    return 0;
}

zip_int64_t ZipBytes::TellStatus(void* data, zip_uint64_t length) {
    if (length < sizeof(zip_stat_t)) {
        zip_error_set(&error, ZIP_ER_INVAL, 0);
        return -1;
    }
    auto& status = *static_cast<zip_stat_t*>(data);
    zip_stat_init(&status);
    status.size = file->GetLength();
    status.valid = ZIP_STAT_SIZE;
    return sizeof status;
}

} // namespace keltavlo
