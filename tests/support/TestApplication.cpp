#include "support/TestApplication.h"

#include "archives/FolderDocument.h"

#include <utility>

std::string WorkshopTest::Put(const std::string& name, const Bytes& bytes) const {
    WriteFile(PathTo(name), bytes);
    return PathTo(name);
}

std::string WorkshopTest::TakeMessage() {
    EXPECT_EQ(messages.size(), 1U);
    const std::vector<std::string> taken = std::exchange(messages, {});
    return taken.empty() ? std::string() : taken.front();
}

std::vector<std::string> WorkshopTest::NamesIn(const std::string& path) {
    FolderListing listing;
    application.GetFileSystem().ListFolder(path, listing);
    return listing.names;
}

std::string WorkshopTest::TextOf(const std::string& path) {
    const auto file = application.GetFileSystem().OpenFile(path, CFile::modeRead, nullptr);
    if (!file) return "(fails)";
    std::string text(file->GetLength(), '\xFF');
    file->Read(text.data(), text.size());
    return text;
}

Bytes MakeWal(std::uint32_t width, std::uint32_t height, const std::string& name) {
    constexpr std::uint32_t headerSize = 100;
    Bytes wal = ToBytes(name);
    wal.resize(32);
    PutU32(wal, 32, width);
    PutU32(wal, 36, height);
    PutU32(wal, 40, headerSize);
    wal.resize(headerSize);
    for (std::uint32_t y = 0; y < height; ++y)
        for (std::uint32_t x = 0; x < width; ++x) wal.push_back(static_cast<std::byte>(x + y));
    wal.resize(headerSize + std::size_t{width} * height * 85 / 64);
    return wal;
}
