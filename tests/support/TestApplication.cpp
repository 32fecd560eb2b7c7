#include "support/TestApplication.h"

#include "archives/FolderDocument.h"

#include <utility>

namespace keltavlo {

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
    const Bytes bytes = ReadAll(*file);
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

} // namespace keltavlo
