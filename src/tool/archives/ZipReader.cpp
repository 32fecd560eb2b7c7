#include "tool/archives/ZipReader.h"

#include "resources/streams/InputStream.h"

namespace keltavlo {

namespace {

// Zeros can shrink to a thousandth. Textures do not, and a small file must not fill the memory.
constexpr std::uint64_t freeSize = std::uint64_t{16} << 20; // bytes
constexpr std::uint64_t largestRatio = 128;
constexpr std::uint64_t deflateRatio = 1032; // the method's maximum

[[noreturn]] void Refuse(const ZipMember& member, const char* sentence) {
    throw CFileException(CFileException::generic, member.name, sentence);
}

StreamError ErrorOf(const zip_error_t& error) {
    switch (zip_error_code_zip(&error)) {
    case ZIP_ER_NOZIP:
    case ZIP_ER_MULTIDISK:
        return StreamError::badClass;
    case ZIP_ER_READ:
    case ZIP_ER_SEEK:
    case ZIP_ER_EOF:
        return StreamError::endOfFile;
    default:
        return StreamError::badIndex;
    }
}

struct CloseMember {
    void operator()(zip_file_t* file) const { zip_fclose(file); }
};

// Fills the bytes, then reads to the end, where libzip checks the checksum.
bool ReadWhole(zip_file_t* file, std::vector<std::byte>& bytes) {
    std::byte surplus;
    const auto length = static_cast<zip_int64_t>(bytes.size());
    return zip_fread(file, bytes.data(), bytes.size()) == length && zip_fread(file, &surplus, 1) == 0;
}

} // namespace

ZipReader::ZipReader(InputStream& in) : bytes(in.DuplicateFile()) {
    zip_error_t error;
    zip_error_init(&error);
    archive = bytes.OpenArchive(error);
    const StreamError reason = ErrorOf(error);
    zip_error_fini(&error);
    if (archive) return;
    bytes.RethrowFailure();
    in.FailUnnamed(reason);
}

ZipReader::~ZipReader() {
    zip_discard(archive);
}

std::size_t ZipReader::GetCount() const {
    return static_cast<std::size_t>(zip_get_num_entries(archive, 0));
}

ZipMember ZipReader::GetMember(std::size_t index) const {
    ZipMember member;
    if (const char* name = zip_get_name(archive, index, ZIP_FL_ENC_RAW)) member.name = name;
    zip_stat_t status;
    zip_stat_init(&status);
    if (zip_stat_index(archive, index, 0, &status) != 0) return member;
    member.size = status.size;
    member.storedSize = status.comp_size;
    member.method = status.comp_method;
    member.isEncrypted = status.encryption_method != ZIP_EM_NONE;
    return member;
}

void ZipReader::CheckReadable(const ZipMember& member) const {
    if (member.isEncrypted) Refuse(member, "The entry is encrypted, which is not supported.");
    const bool isStored = member.method == ZIP_CM_STORE;
    if (!isStored && member.method != ZIP_CM_DEFLATE)
        Refuse(member, "The entry is compressed by a method that is not supported.");
    if (member.size > freeSize && (member.size - freeSize) / largestRatio > member.storedSize)
        Refuse(member, "The entry would be far larger than its compressed bytes, so it is not read.");
    if (member.size / (isStored ? 1 : deflateRatio) > member.storedSize)
        Refuse(member, "The entry is damaged: it is too short for its size.");
}

std::vector<std::byte> ZipReader::ReadMember(std::size_t index) {
    const ZipMember member = GetMember(index);
    CheckReadable(member);
    const std::unique_ptr<zip_file_t, CloseMember> file(zip_fopen_index(archive, index, 0));
    std::vector<std::byte> contents(file ? member.size : 0);
    if (file && ReadWhole(file.get(), contents)) return contents;
    bytes.RethrowFailure();
    Refuse(member, "The entry is damaged: its bytes do not agree with its checksum and size.");
}

} // namespace keltavlo
