#pragma once

#include <string>
#include <vector>

// What the command line asks for.
struct Request {
    enum class Format {
        HfsPlus, // one HFS Plus volume
        Hybrid, // ISO 9660 with Joliet, Rock Ridge and HFS Plus
    };

    Format format = Format::Hybrid;
    std::string output;
    std::string volumeName;
    std::string source;

    static constexpr const char *usage =
        "hdiutil makehybrid [-hfs] -o IMAGE -default-volume-name NAME -ov -quiet FOLDER";

    // The arguments after the program's name, in exactly the order of the usage line; anything else
    // throws standin::WrongUsage. What stands in a value's place is that value, whatever it begins
    // with.
    static Request from(const std::vector<std::string> &arguments);
};
