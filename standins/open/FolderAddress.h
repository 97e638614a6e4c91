#pragma once

#include <string>
#include <string_view>

namespace standin
{

// The absolute folder that is to be shown for a path: itself, or the folder that a file lies in.
// Fails for what does not exist.
std::string folderToShow(const std::string &path);

// The absolute path of a file, folder or link that is to be shown selected, without a slash at its
// end. Fails for what does not exist.
std::string itemToShow(const std::string &path);

// file:// address of an absolute path (RFC 8089). Everything but letters, digits and "/-._~" is
// percent-encoded, as some receivers split at other characters that an address may hold.
std::string fileAddress(std::string_view path);

} // namespace standin
