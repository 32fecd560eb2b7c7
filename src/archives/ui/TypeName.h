#pragma once

#include <QString>

#include <string>

namespace keltavlo {

// What people call the type of a file of that name: as the desktop knows it, else as the program's document
// types do. Empty when neither knows it. The file need not be there.
QString TypeNameOfFile(const std::string& name);
QString TypeNameOfFolder();

} // namespace keltavlo
