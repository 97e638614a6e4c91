#include "CacheCategory.h"

#include <QtGlobal>

// Logs and mail downloads stand directly in the home folder, on purpose.
constinit const std::array<CacheCategory, cacheCategoryCount> cacheCategories{{
    {QT_TRID_NOOP("Caches"), "Library/Caches"},
    {QT_TRID_NOOP("Logs"), "Logs"},
    {QT_TRID_NOOP("Downloads"), "Downloads"},
    {QT_TRID_NOOP("Mail Download"), "Mail Downloads"},
    {QT_TRID_NOOP("Trash"), ".Trash"},
}};
