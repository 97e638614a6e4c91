#include "PathText.h"

namespace
{

QString withoutTrailingSlashes(QString path)
{
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    return path;
}

} // namespace

QString lastPathComponent(const QString &path)
{
    const QString trimmed = withoutTrailingSlashes(path);
    return trimmed.size() == 1 ? trimmed : trimmed.mid(trimmed.lastIndexOf(u'/') + 1);
}

QString appendPathComponent(const QString &folder, const QString &component)
{
    const QString trimmed = withoutTrailingSlashes(folder);
    return trimmed.endsWith(u'/') ? trimmed + component : trimmed + u'/' + component;
}
