#pragma once

#include <QByteArray>
#include <QString>

/// The names that a list of applications gives to icons. They become file names in the user's
/// documents folder, and a server wrote them.

/// Letters, digits, dots, dashes and underscores of ASCII, at most 100, not beginning with a dot;
/// and none of the files that the program keeps in that folder, in any case of letters.
bool isIconName(const QString &name);

/// Where an icon's image is fetched: the server's address with "images" behind it and the name with
/// ".png", joined like paths. That makes one slash of every run of slashes, also behind the scheme,
/// and the address is used in this form: "https:/host/conf/images/name.png".
QByteArray iconAddress(const QString &server, const QString &name);
