#pragma once

#include <string>

namespace standin
{

// Absolute and free of links. A path that does not exist fails with the system's words.
std::string resolved(const std::string &path);

// Fails unless the path leads to a readable regular file. Never waits: a fifo is refused, not
// opened for reading.
void requireRegularFile(const std::string &path);

// Fails when both paths lead to one file, by whatever link. A target that does not exist is another
// file.
void requireDifferentFiles(const std::string &source, const std::string &target);

} // namespace standin
