#include "Request.h"

#include "Failure.h"

#include <algorithm>
#include <string_view>

namespace
{

// Null where a value stands.
constexpr const char *form[] = {"makehybrid", "-o",  nullptr,  "-default-volume-name",
                                nullptr,      "-ov", "-quiet", nullptr};

bool fits(const std::vector<std::string> &arguments)
{
    return std::equal(arguments.begin(), arguments.end(), std::begin(form), std::end(form),
                      [](const std::string &argument, const char *word) {
                          return word == nullptr || argument == word;
                      });
}

} // namespace

Request Request::from(const std::vector<std::string> &arguments)
{
    auto rest = arguments;
    Request request;
    if (rest.size() > 1 && rest[1] == "-hfs") {
        request.format = Format::HfsPlus;
        rest.erase(rest.begin() + 1);
    }
    if (!fits(rest))
        throw standin::WrongUsage();
    request.output = rest[2];
    request.volumeName = rest[4];
    request.source = rest[7];
    return request;
}
