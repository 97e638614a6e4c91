#include "FolderAddress.h"

#include "Failure.h"

#include <filesystem>

namespace standin
{

// Links stay as they are: the person sees the path that was asked for.
std::string folderToShow(const std::string &path)
{
    namespace fs = std::filesystem;
    std::error_code error;
    const auto status = fs::status(path, error);
    if (!fs::exists(status))
        throw Failure(Failed, "The file " + path + " does not exist.");
    const fs::path absolute = fs::absolute(path).lexically_normal();
    return fs::is_directory(status) ? absolute.string() : absolute.parent_path().string();
}

std::string itemToShow(const std::string &path)
{
    namespace fs = std::filesystem;
    std::error_code error;
    if (!fs::exists(fs::symlink_status(path, error)))
        throw Failure(Failed, "The file " + path + " does not exist.");
    const fs::path absolute = fs::absolute(path).lexically_normal();
    return absolute.has_filename() ? absolute.string() : absolute.parent_path().string();
}

std::string fileAddress(std::string_view path)
{
    static constexpr std::string_view plain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"
                                              "0123456789/-._~";
    static constexpr std::string_view digits = "0123456789ABCDEF";
    std::string address = "file://";
    for (char character : path) {
        const auto byte = static_cast<unsigned char>(character);
        if (plain.find(character) != std::string_view::npos)
            address += character;
        else
            address.append({'%', digits[byte >> 4], digits[byte & 15]});
    }
    return address;
}

} // namespace standin
