#pragma once

#include "support/builders/PackBuilder.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace keltavlo {

// Provides an empty folder for each test.
class FolderTest : public testing::Test {
protected:
    // Returns a path in the folder.
    std::string PathTo(const std::string& name) const { return folder.path().toStdString() + "/" + name; }
    // Writes the file and returns its path.
    std::string Put(const std::string& name, const Bytes& bytes) const {
        WriteFile(PathTo(name), bytes);
        return PathTo(name);
    }

    QTemporaryDir folder;
};

} // namespace keltavlo
