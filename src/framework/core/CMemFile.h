#pragma once

#include "framework/core/CFile.h"

#include <span>
#include <utility>
#include <vector>

namespace keltavlo {

// A file in memory: over a buffer of the caller's, whose length is then fixed, or over a buffer of its own
// that grows.
class CMemFile : public CFile {
public:
    CMemFile() = default;
    explicit CMemFile(std::span<std::byte> buffer) : attached(buffer), fixed(true) {}

    std::string GetFilePath() const override { return {}; }
    std::size_t Read(void* buffer, std::size_t count) override;
    // Throws CMemoryException if a fixed buffer is full, after writing the bytes that still fit.
    void Write(const void* buffer, std::size_t count) override;
    std::uint64_t Seek(std::int64_t offset, From from) override;
    std::uint64_t GetPosition() const override { return position; }
    std::uint64_t GetLength() const override { return Bytes().size(); }
    // Throws CMemoryException if the length of a fixed buffer would change.
    void SetLength(std::uint64_t length) override;
    void Close() override {}
    void Abort() noexcept override {}
    // Returns another file over the same fixed buffer, or over a copy of the file's own buffer.
    std::unique_ptr<CFile> Duplicate() const override;

    // Returns the bytes of the file's own buffer and leaves the file empty.
    std::vector<std::byte> Detach() {
        position = 0;
        return std::exchange(own, {});
    }
    std::span<const std::byte> Bytes() const { return fixed ? std::span<const std::byte>(attached) : own; }

protected:
    // The sentence shown to the user when a fixed buffer is full.
    virtual const char* GetFullSentence() const { return "The file cannot grow."; }

private:
    std::vector<std::byte> own;
    std::span<std::byte> attached;
    bool fixed = false;
    std::uint64_t position = 0;
};

} // namespace keltavlo
