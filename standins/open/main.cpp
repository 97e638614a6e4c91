// Shows a folder, or a file in its folder, in the desktop's file manager, taking the arguments of
// macOS's open.

#include "Failure.h"
#include "FileManager.h"
#include "FolderAddress.h"
#include "Program.h"

using namespace standin;

int main(int argc, char **argv)
{
    const char *usage = "open -a Finder FOLDER | open -R FILE";
    return runProgram("open", usage, argc, argv, [](const Arguments &arguments) {
        if (arguments.size() == 3 && arguments[0] == "-a" && arguments[1] == "Finder")
            showFolder(folderToShow(arguments[2]));
        else if (arguments.size() == 2 && arguments[0] == "-R")
            showItem(itemToShow(arguments[1]));
        else
            throw WrongUsage();
    });
}
