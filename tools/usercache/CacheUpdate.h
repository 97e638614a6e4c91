#pragma once

#include "CacheCategory.h"

#include <QUrl>

#include <cstdint>
#include <variant>

/// The stored grant was resolved again, because the page had no folder from it.
struct GrantResolved {
    QUrl bookmarkURL;
};

/// A ticked category was measured.
struct FolderMeasured {
    CacheCategoryIndex category;
    std::int64_t bytes;
};

/// What is on the disk has changed: its figures, and the sizes shown before, are out of date.
struct DiskChanged {
};

/// The page may be used again.
struct CleanerIdle {
};

/// What a worker has for the page, in the order in which the page is to show it.
using CacheUpdate = std::variant<GrantResolved, FolderMeasured, DiskChanged, CleanerIdle>;
