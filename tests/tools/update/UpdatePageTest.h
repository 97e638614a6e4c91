#pragma once

#include "JobList.h"
#include "Maker.h"
#include "MakersServer.h"
#include "MiscTool.h"
#include "PageControls.h"
#include "UpdateCheckView.h"

#include <QDesktopServices>
#include <QDir>
#include <QLabel>
#include <QSettings>
#include <QTranslator>
#include <QUrl>

/// A test of the update page: the page beside the maker's server, with an empty Downloads folder
/// and no memory of earlier checks. Notes the files that the page opens.
class UpdatePageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setOrganizationName(QLatin1String("Toolvane"));
        QCoreApplication::setApplicationName(QLatin1String("UpdateTest"));
        QCoreApplication::setApplicationVersion(QLatin1String("1.2.0"));
        QVERIFY(MiscTool::getUserHome().startsWith(qEnvironmentVariable("TOOLVANE_TEST_SANDBOX")));
        QVERIFY(m_texts.load(QLatin1String(":/localisation/toolvane_en.qm")));
        QCoreApplication::installTranslator(&m_texts);
        QDesktopServices::setUrlHandler(QLatin1String("file"), this, "noteOpened");
    }
    void init()
    {
        QSettings().clear();
        QSettings().setValue(QLatin1String("Addresses/UpdateFeed"),
                             QString::fromLatin1(m_server.address("/feed.xml")));
        QDir(MiscTool::getDownloadFolder()).removeRecursively();
        m_server.set("/files/new.bin", m_file);
        m_opened.clear();
    }
    void cleanup() { m_view.reset(); }
    void cleanupTestCase() { QDesktopServices::unsetUrlHandler(QLatin1String("file")); }

public Q_SLOTS:
    void noteOpened(const QUrl &url) { m_opened += url; }

protected:
    void open(const QByteArray &key)
    {
        m_view = std::make_unique<UpdateCheckView>(key, nullptr);
        m_view->setJobs(m_jobs, QLatin1String("Page"));
        m_view->show();
    }
    void publish(const QByteArray &items, const QByteArray &date)
    {
        m_server.set("/feed.xml", m_maker.sealed(Maker::feed(items, date)));
    }
    void publish(const QByteArray &items) { publish(items, "Mon, 02 Mar 2026 10:00:00 +0000"); }
    QByteArray offered(const QByteArray &version, const QByteArray &more = {}) const
    {
        return m_maker.item(version, m_server.address("/files/new.bin"), m_file, more);
    }
    void check()
    {
        PageControls::press(*m_view, "checkButton");
        QTRY_VERIFY(PageControls::control<QPushButton>(*m_view, "checkButton").isEnabled());
    }
    QString label(const char *name) const
    {
        return PageControls::control<QLabel>(*m_view, name).text();
    }
    /// Whether the sentence in bold is this one.
    bool says(const char *key, const QString &version = QLatin1String("1.3")) const
    {
        const QString text = qtTrId(key);
        return label("headlineLabel")
            == (text.contains(QLatin1String("%1")) ? text.arg(version) : text);
    }
    bool isShown(const char *name) const
    {
        return PageControls::control<QWidget>(*m_view, name).isVisible();
    }
    QStringList downloads() const
    {
        return QDir(MiscTool::getDownloadFolder())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTranslator m_texts;
    Maker m_maker;
    MakersServer m_server;
    JobList m_jobs;
    QByteArray m_file = QByteArray(200'000, 'n');
    QList<QUrl> m_opened;
    std::unique_ptr<UpdateCheckView> m_view;
};
