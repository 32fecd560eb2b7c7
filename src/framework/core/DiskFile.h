#pragma once

#include "framework/core/CFile.h"
#include "framework/core/FileStamp.h"

#include <span>
#include <utility>

namespace keltavlo {

// Owns a file descriptor of the operating system and closes it on destruction.
class Descriptor {
public:
    explicit Descriptor(int number = -1) : value(number) {}
    Descriptor(Descriptor&& other) noexcept : value(std::exchange(other.value, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(value, other.value);
        return *this;
    }
    ~Descriptor() { Close(); }

    bool IsOpen() const { return value >= 0; }
    int Get() const { return value; }
    // Returns the result of close(), or 0 if nothing was open.
    int Close();

private:
    int value;
};

// Writes all bytes at the descriptor's position. Throws CFileException with the path on failure.
void WriteAll(int descriptor, std::span<const std::byte> bytes, const std::string& path);

// An ordinary file on disk, read and written in place.
class DiskFile final : public CFile {
public:
    // Opens an existing ordinary file. Throws CFileException on failure.
    DiskFile(const std::string& path, unsigned flags);

    std::string GetFilePath() const override { return filePath; }
    std::size_t Read(void* buffer, std::size_t count) override;
    void Write(const void* buffer, std::size_t count) override;
    std::uint64_t Seek(std::int64_t offset, From from) override;
    std::uint64_t GetPosition() const override { return position; }
    std::uint64_t GetLength() const override;
    void SetLength(std::uint64_t length) override;
    void Close() override;
    void Abort() noexcept override { descriptor.Close(); }
    std::unique_ptr<CFile> Duplicate() const override;
    bool IsUnchanged() const override;

private:
    DiskFile(Descriptor file, std::string path, const FileState& openedState)
        : descriptor(std::move(file)), filePath(std::move(path)), state(openedState) {}
    [[noreturn]] void ThrowErrno() const;

    Descriptor descriptor;
    std::string filePath;           // full
    std::optional<FileState> state; // when it was opened
    std::uint64_t position = 0;     // not the descriptor's, so that duplicates do not disturb each other
};

} // namespace keltavlo
