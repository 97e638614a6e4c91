// Shows a folder in the desktop's file manager, taking the arguments of macOS's open.

#include "Failure.h"
#include "FileManager.h"
#include "FolderAddress.h"
#include "Program.h"

using namespace standin;

int main(int argc, char **argv)
{
    return runProgram("open", "open -a Finder FOLDER", argc, argv, [](const Arguments &arguments) {
        if (arguments.size() != 3 || arguments[0] != "-a" || arguments[1] != "Finder")
            throw WrongUsage();
        showFolder(folderToShow(arguments[2]));
    });
}
