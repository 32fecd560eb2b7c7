#pragma once

#include "app/HeadlessApplication.h"
#include "archives/FolderDocument.h"
#include "resources/BuiltInFiles.h"
#include "support/FolderTest.h"
#include "support/builders/TextureBuilder.h"

namespace keltavlo {

// Parts of the messages about files that cannot be opened.
inline constexpr const char* badFormat = "expected format";
inline constexpr const char* badIndex = "does not allow";
inline constexpr const char* tooShort = "too early";

// Returns the state of the command, which the target must handle.
inline CCmdUI StateOf(CCmdTarget& target, CommandId id) {
    CCmdUI state(id);
    EXPECT_TRUE(target.OnCmdMsg(id, &state));
    return state;
}

template <CommandId id, class Target>
void Send(Target& target) {
    target.OnCmdMsg(id, nullptr);
}

// Provides the program without windows, and an empty folder, for each test.
class WorkshopTest : public FolderTest {
protected:
    // Opens the document; null, with a message, if that fails.
    template <class Document>
    Document* Open(const std::string& path) {
        return dynamic_cast<Document*>(application.OpenDocumentFile(path));
    }
    template <class Document>
    Document* OpenBuiltIn(BuiltInFile file) {
        return Open<Document>(GetBuiltInPath(file));
    }
    template <class Document>
    Document& New() {
        application.newType = DocTemplateRegistry::Get().FindTemplate(Document::runtimeClass);
        return dynamic_cast<Document&>(*application.OnFileNew());
    }
    // Opens the bytes as a new file and returns the message; empty if it opens.
    template <class Document>
    std::string Try(const Bytes& bytes, const std::string& extension) {
        const std::string path = Put("file" + std::to_string(++fileCount) + extension, bytes);
        return Open<Document>(path) ? std::string() : TakeMessage();
    }
    // Returns the only message since the last call; none and several are failures of the test.
    std::string TakeMessage() {
        EXPECT_EQ(messages.size(), 1U);
        const std::vector<std::string> taken = std::exchange(messages, {});
        return taken.empty() ? std::string() : taken.front();
    }
    // Returns the names in a folder or archive.
    std::vector<std::string> NamesIn(const std::string& path) {
        FolderListing listing;
        application.GetFileSystem().ListFolder(path, listing);
        return listing.names;
    }
    EntryStatus StatusOf(const std::string& path) {
        EntryStatus status;
        application.GetFileSystem().GetStatus(path, status);
        return status;
    }
    // Reads the file; "(fails)" if it does not open.
    std::string TextOf(const std::string& path) {
        const auto file = application.GetFileSystem().OpenFile(path, CFile::modeRead, nullptr);
        if (!file) return "(fails)";
        const Bytes bytes = ReadAll(*file);
        return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
    }

    std::vector<std::string> messages;
    int messageCount = 0; // including those that could not be stored for lack of memory
    int fileCount = 0;
    HeadlessApplication application{[this](const std::string& text) {
        ++messageCount;
        messages.push_back(text);
    }};
};

} // namespace keltavlo
