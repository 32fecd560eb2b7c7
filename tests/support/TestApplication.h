#pragma once

#include "app/HeadlessApplication.h"
#include "builders/PackBuilder.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <string>
#include <vector>

// The program without windows and a folder for files, made afresh for each test.
class WorkshopTest : public testing::Test {
protected:
    // A path in the test's folder.
    std::string PathTo(const std::string& name) const { return folder.path().toStdString() + "/" + name; }
    std::string Put(const std::string& name, const Bytes& bytes) const;

    // The document that opens under the path; null, with a message, when it does not.
    template <class Document>
    Document* Open(const std::string& path) {
        return dynamic_cast<Document*>(application.OpenDocumentFile(path));
    }
    // The one message since the last call; none and several are failures of the test.
    std::string TakeMessage();

    QTemporaryDir folder;
    std::vector<std::string> messages;
    HeadlessApplication application{[this](const std::string& text) { messages.push_back(text); }};
};

// The file of a WAL texture: every index is (x + y) % 256, the levels below 0 are left 0.
Bytes MakeWal(std::uint32_t width, std::uint32_t height, const std::string& name = "test");
