#pragma once

#include "CentralDirectory.h"

/// Looks at the header that comes before each entry's data, and fills in where the data is and
/// whether the header is sound: it is one, its name is the directory's, and the data ends before
/// the directory. Fails with PartsOverlap if two entries share bytes, or an entry and the
/// directory: that is how a small archive unpacks to petabytes.
void readLocalHeaders(CentralDirectory &directory, const ArchiveFile &file);
