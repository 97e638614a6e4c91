#pragma once

#include <QByteArray>
#include <QString>

/// Lists of applications as the maker writes them.
namespace AppsPlist
{

inline QByteArray string(const char *key, const QByteArray &value)
{
    return QByteArray("<key>") + key + "</key><string>" + value + "</string>";
}

inline QByteArray app(const QByteArray &icon, const QByteArray &name, const QByteArray &url)
{
    return "<dict>" + string("Icon", icon) + string("Name", name)
        + string("Desc", "what " + name + " does") + string("Type", "Tool") + string("URL", url)
        + "</dict>";
}

inline QByteArray list(const QByteArray &apps, const QByteArray &social = {})
{
    return "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>Apps</key><array>" + apps
        + "</array><key>Social</key><dict>" + social + "</dict></dict></plist>";
}

} // namespace AppsPlist
