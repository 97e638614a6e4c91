#include "HfsImage.h"
#include "HybridImage.h"
#include "OutputFile.h"
#include "Program.h"
#include "Request.h"
#include "SourceFolder.h"

namespace
{

void makeImage(const standin::Arguments &arguments)
{
    const auto request = Request::from(arguments);
    auto folder = source::openRoot(request.source);
    standin::OutputFile output(request.output);
    if (request.format == Request::Format::HfsPlus)
        writeHfsImage(std::move(folder), request.source, request.volumeName, output);
    else
        writeHybridImage(request.source, request.volumeName, output);
    output.commit();
}

} // namespace

int main(int argc, char **argv)
{
    return standin::runProgram("hdiutil", Request::usage, argc, argv, makeImage);
}
