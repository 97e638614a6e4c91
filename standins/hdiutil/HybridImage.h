#pragma once

#include "OutputFile.h"
#include "Progress.h"

#include <string>
#include <vector>

/// Packs a folder, named by any path to it, into an image that is ISO 9660 with Joliet and Rock
/// Ridge and HFS Plus at once, by xorriso. Fails with xorriso's own words, and with status 69 if it
/// is not installed.
void writeHybridImage(const std::string &source, const std::string &volumeName,
                      const standin::OutputFile &output, standin::Progress &progress);

/// The volume name that every one of the file systems takes: no control characters, at most 32
/// bytes, cut at a character; "Untitled" if nothing is left. What is not UTF-8 becomes '_'.
std::string hybridVolumeName(const std::string &name);

/// What xorriso gets: all paths absolute and free of links; `excluded` stay out of the image;
/// `outputDescriptor` is the number under which it finds the image file open.
std::vector<std::string> hybridArguments(const std::string &source, const std::string &volumeName,
                                         const std::vector<std::string> &excluded,
                                         int outputDescriptor);
