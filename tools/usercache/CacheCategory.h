#pragma once

#include <array>
#include <bitset>
#include <cstddef>

/// One kind of clutter in a home folder.
struct CacheCategory {
    const char *titleKey; ///< Key in the table of texts; a size follows the text directly.
    const char *folder; ///< Relative to the home folder, without a slash at either end.
};

inline constexpr std::size_t cacheCategoryCount = 5;

/// All kinds in the order in which they are shown, measured and cleaned.
extern const std::array<CacheCategory, cacheCategoryCount> cacheCategories;

/// Place of a category in `cacheCategories`.
using CacheCategoryIndex = std::size_t;

/// Which categories take part, by their place in `cacheCategories`.
using CacheSelection = std::bitset<cacheCategoryCount>;
