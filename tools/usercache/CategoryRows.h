#pragma once

#include "CacheCleaner.h"

#include <QString>

class QCheckBox;
class QLabel;

/// The page's rows, one for each category: a box to tick, whose title a measured size follows, and
/// a label for what the size leaves out. Refers to widgets that somebody else owns. Interface
/// thread only.
class CategoryRows
{
public:
    struct Row {
        QCheckBox *box;
        QLabel *result;
    };

    /// In the order of `cacheCategories`.
    explicit CategoryRows(const std::array<Row, cacheCategories.size()> &rows) : m_rows(rows) { }

    CacheSelection ticked() const; ///< Fully ticked ones alone.
    void setEnabled(bool enabled) const;
    void showPaths(const QString &home) const; ///< In tool tips.
    void showPlainTitles() const;
    void clearResults(CacheSelection rows) const;
    void show(const FolderMeasured &measured) const;
    void show(const FolderCleaned &cleaned) const;

private:
    std::array<Row, cacheCategories.size()> m_rows;
};
