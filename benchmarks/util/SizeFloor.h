#pragma once

#include <string>

/// The minimum cost of measuring the items of one folder: raw getdents64 and one statx for each
/// item, nothing else. Returns their sum; ends the program if the folder cannot be read.
long long sizeFloor(const std::string &folder);
