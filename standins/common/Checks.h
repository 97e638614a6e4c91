#pragma once

#include <string>

namespace standin
{

/// The path made absolute and free of links. Fails with the system's words if it does not exist.
std::string resolved(const std::string &path);

/// Fails unless the path leads to a readable regular file. Never waits: a fifo is refused without
/// being opened.
void requireRegularFile(const std::string &path);

/// Fails if both paths lead to one file, by whatever link: device and inode are compared. A target
/// that does not exist is another file.
void requireDifferentFiles(const std::string &source, const std::string &target);

} // namespace standin
