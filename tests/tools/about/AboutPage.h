#pragma once

#include "AboutViewController.h"
#include "AppsPlist.h"
#include "MakersServer.h"
#include "MiscTool.h"
#include "PageControls.h"

#include <QDesktopServices>
#include <QDir>
#include <QSettings>
#include <QSignalSpy>
#include <QTableView>
#include <QTranslator>
#include <QUrl>

/// The page beside the maker's server, in a documents folder of its own; notes what it opens.
class AboutPage : public QObject
{
    Q_OBJECT

public:
    AboutPage()
    {
        if (!m_texts.load(QLatin1String(":/localisation/toolvane_en.qm")))
            qFatal("there are no texts");
        QCoreApplication::installTranslator(&m_texts);
        if (!MiscTool::getUserHome().startsWith(qEnvironmentVariable("TOOLVANE_TEST_SANDBOX")))
            qFatal("this is a real home folder");
        QSettings().setValue(QLatin1String("Addresses/Configuration"),
                             QString::fromLatin1(server.address("/conf/")));
        for (const char *scheme : {"http", "https", "mailto", "file", "javascript", "x-other"})
            QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "noteOpened");
    }
    ~AboutPage() override
    {
        for (const char *scheme : {"http", "https", "mailto", "file", "javascript", "x-other"})
            QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
    }

    static QDir documents() { return QDir(MiscTool::getAppDocumentFolder()); }
    static QStringList files()
    {
        return documents().entryList(QDir::AllEntries | QDir::Hidden | QDir::System
                                     | QDir::NoDotAndDotDot);
    }
    static QByteArray read(const QString &name)
    {
        QFile file(documents().filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static void write(const QString &name, const QByteArray &bytes)
    {
        QFile file(documents().filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write");
    }

    /// Opens the page and waits until it has loaded.
    void open()
    {
        page = std::make_unique<AboutViewController>();
        page->resize(800, 600);
        QSignalSpy loaded(table().model(), &QAbstractItemModel::modelReset);
        page->show();
        loaded.wait(30'000);
        QCOMPARE(loaded.size(), 1);
    }
    QTableView &table() const { return PageControls::control<QTableView>(*page, "table"); }
    QModelIndex cell(int row, int column) const { return table().model()->index(row, column); }
    QIcon icon(int row) const { return cell(row, 0).data(Qt::DecorationRole).value<QIcon>(); }
    QString text(int row, int column) const { return cell(row, column).data().toString(); }
    void awaitRequest(const QByteArray &path) const
    {
        QTRY_VERIFY_WITH_TIMEOUT(server.paths().contains(path), 30'000);
    }

    MakersServer server;
    QStringList opened;
    std::unique_ptr<AboutViewController> page;

public Q_SLOTS:
    void noteOpened(const QUrl &url) { opened += url.toString(); }

private:
    QTranslator m_texts;
};
