// The files of the store folder: read whole and replaced whole.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// False when the file is missing or cannot be read; reads at most limit bytes.
bool ReadWholeFile(const std::string& path, std::string& bytes, std::size_t limit = SIZE_MAX);
// Writes bytes to a new file in the folder and moves it over path: path holds the old file or
// the new one, never a part. False, with path untouched, when the file is read-only or locked.
bool ReplaceWholeFile(const std::string& folder, const std::string& path, const std::string& bytes);
// The extension of a language's file.
constexpr char kPoExtension[] = ".po";
// Names of the "*.po" files of the folder as the folder spells them, sorted without regard to case.
std::vector<std::string> ListPoFiles(const std::string& folder);
