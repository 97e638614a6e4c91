#pragma once

#include <string>

/// The minimum that the sizes of one folder's items can cost: raw getdents64 and one statx an item,
/// with nothing around them. Returns their sum; ends the program if the folder cannot be read.
long long sizeFloor(const std::string &folder);
