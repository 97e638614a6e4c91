#pragma once

#include "Contents.h"
#include "Destination.h"
#include "Report.h"

#include <string>

/// Hands an archive with unknown methods or encryption to the system's unzip, as an open file: it
/// reads an archive's name as a pattern ("photos[1].zip" unpacks "photos1.zip" if that is there)
/// and takes another if the named one is broken. It trusts an archive's links and those in the
/// folder, so there must be nothing of the kind. The exit status.
int unpackWithOtherProgram(const ArchiveFile &file, const Contents &contents,
                           const Destination &destination, const std::string &folder,
                           archive::Report &report);
