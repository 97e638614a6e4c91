#pragma once

#include "AboutViewController.h"
#include "Files.h"
#include "MakersServer.h"
#include "MiscTool.h"
#include "PageControls.h"

#include <QBuffer>
#include <QDesktopServices>
#include <QDir>
#include <QSettings>
#include <QSignalSpy>
#include <QTableView>
#include <QUrl>

/// Lists of applications as the maker writes them.
namespace AppsPlist
{

inline QByteArray string(const char *key, const QByteArray &value)
{
    return QByteArray("<key>") + key + "</key><string>" + value + "</string>";
}

inline QByteArray app(const QByteArray &icon, const QByteArray &name, const QByteArray &url = {})
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

inline QByteArray picture(int width, int height, Qt::GlobalColor color = Qt::red,
                          const char *format = "png")
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, format);
    return bytes;
}

/// A test of the page beside the maker's server, with an empty documents folder. Notes the
/// addresses that the page opens.
class AboutPageFixture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setOrganizationName(QLatin1String("Toolvane"));
        QCoreApplication::setApplicationName(QLatin1String("AboutTest"));
    }
    void init()
    {
        QVERIFY(MiscTool::getUserHome().startsWith(qEnvironmentVariable("TOOLVANE_TEST_SANDBOX")));
        for (const QString &file : files())
            QFile::remove(documents().filePath(file));
        m_opened.clear();
        m_server = std::make_unique<MakersServer>();
        QSettings().setValue(QLatin1String("Addresses/Configuration"), serversAddress());
        for (const char *scheme : {"http", "https", "mailto", "file", "javascript", "x-other"})
            QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "noteOpened");
    }
    void cleanup() { m_page.reset(); }

public Q_SLOTS:
    void noteOpened(const QUrl &url) { m_opened += url.toString(); }

protected:
    static QDir documents() { return QDir(MiscTool::getAppDocumentFolder()); }
    static QStringList files()
    {
        return documents().entryList(QDir::AllEntries | QDir::Hidden | QDir::System
                                     | QDir::NoDotAndDotDot);
    }
    static QByteArray read(const char *name)
    {
        return Files::read(documents().filePath(QLatin1String(name)));
    }
    static void write(const char *name, const QByteArray &bytes)
    {
        Files::write(documents().filePath(QLatin1String(name)), bytes);
    }

    QString serversAddress() const { return QString::fromLatin1(m_server->address("/conf/")); }
    void serve(const QByteArray &list) { m_server->set("/conf/Apps.plist", list); }
    void awaitRequest(const QByteArray &path) const
    {
        QTRY_VERIFY_WITH_TIMEOUT(m_server->paths().contains(path), 30'000);
    }
    /// Opens the page and waits until it has loaded.
    void open()
    {
        m_page = std::make_unique<AboutViewController>();
        m_page->resize(800, 600);
        QSignalSpy loaded(table().model(), &QAbstractItemModel::modelReset);
        m_page->show();
        loaded.wait(30'000);
        QCOMPARE(loaded.size(), 1);
    }
    QTableView &table() const { return PageControls::control<QTableView>(*m_page, "table"); }
    int rows() const { return table().model()->rowCount(); }
    QModelIndex cell(int row, int column) const { return table().model()->index(row, column); }
    QIcon icon(int row) const { return cell(row, 0).data(Qt::DecorationRole).value<QIcon>(); }
    QString text(int row, int column) const { return cell(row, column).data().toString(); }

    std::unique_ptr<MakersServer> m_server;
    std::unique_ptr<AboutViewController> m_page;
    QStringList m_opened;
};
