#pragma once

#include <cstddef>
#include <span>
#include <string>

class Tool;

// Whether the tool may write this file: reports it when the file exists and --force was not given, and makes
// the folders that lead to it.
bool PrepareOutput(Tool& tool, const std::string& path, bool force);

// Writes the bytes as a file; a failure is reported, and false.
bool WriteOutput(Tool& tool, const std::string& path, std::span<const std::byte> bytes);
