#pragma once

#include <string>

/// The least that the sizes of one folder's items can cost: raw getdents64 and one statx an item,
/// with nothing around them. Gives their sum; ends the program where the folder cannot be read.
long long sizeFloor(const std::string &folder);
