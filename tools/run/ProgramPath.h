#pragma once

#include <QString>

/// `../libexec/toolvane` beside the application's own binary, in the build tree as when installed.
/// No environment variable changes it: whoever starts the application cannot swap its programs.
QString ownProgramsFolder();

/// The program that really runs for a launch path: the executable file of the same name in
/// `folder` where there is one, otherwise the path as given.
QString programPath(const QString &launchPath, const QString &folder = ownProgramsFolder());
