#pragma once

#include "Files.h"
#include "JobList.h"
#include "Maker.h"
#include "MakersServer.h"
#include "MiscTool.h"
#include "PageControls.h"
#include "UpdateViewController.h"

#include <QDir>
#include <QLabel>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

/// A test of the update page beside the maker's server, with a download folder and an opener of the
/// desktop of its own. The texts are English.
class UpdatePageFixture : public QObject
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
        // The desktop's opener: notes what it gets and ends as the test wants.
        Files::write(
            m_programs.filePath(QStringLiteral("xdg-open")),
            "#!/bin/sh\necho \"$1\" >> \"${0%/*}/opened\"\nexit $(cat \"${0%/*}/status\")\n");
        QFile::setPermissions(m_programs.filePath(QStringLiteral("xdg-open")),
                              QFile::ReadOwner | QFile::ExeOwner);
        qputenv("PATH", QFile::encodeName(m_programs.path()) + ':' + qgetenv("PATH"));
        // A desktop in another language has other folders.
        const QDir settings(qEnvironmentVariable("XDG_CONFIG_HOME"));
        QVERIFY(settings.mkpath(QStringLiteral(".")));
        Files::write(settings.filePath(QStringLiteral("user-dirs.dirs")),
                     "XDG_DOWNLOAD_DIR=\"$HOME/T\xc3\xa9l\xc3\xa9"
                     "chargements\"\n");
    }
    void init()
    {
        QSettings().clear();
        useServer();
        downloadFolder().removeRecursively();
        m_server.set("/files/new.bin", m_file);
        Files::write(m_programs.filePath(QStringLiteral("opened")), {});
        letOpenerEndWith("0");
    }
    void cleanup() { m_view.reset(); }

protected:
    void open(const QByteArray &key)
    {
        m_view = std::make_unique<UpdateCheckView>(key, nullptr);
        m_view->setJobs(m_jobs, QLatin1String("Page"));
        m_view->show();
    }
    void useServer() const
    {
        QSettings().setValue(QLatin1String("Addresses/UpdateFeed"),
                             QString::fromLatin1(m_server.address("/feed.xml")));
    }
    void publish(const QByteArray &items,
                 const QByteArray &date = "Mon, 02 Mar 2026 10:00:00 +0000")
    {
        m_server.set("/feed.xml", m_maker.sealed(Maker::feed(items, date)));
    }
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
    static QString shown(QDate date)
    {
        return QLocale().toString(QDateTime(date, QTime(10, 0), Qt::UTC).toLocalTime(),
                                  QLocale::ShortFormat);
    }
    static QDir downloadFolder()
    {
        return QDir(QStandardPaths::writableLocation(QStandardPaths::DownloadLocation));
    }
    QStringList opened() const
    {
        return QString::fromUtf8(Files::read(m_programs.filePath(QStringLiteral("opened"))))
            .split(u'\n', Qt::SkipEmptyParts);
    }
    void letOpenerEndWith(const QByteArray &status) const
    {
        Files::write(m_programs.filePath(QStringLiteral("status")), status);
    }
    QStringList downloads() const
    {
        return downloadFolder().entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTranslator m_texts;
    Maker m_maker;
    MakersServer m_server;
    JobList m_jobs;
    QByteArray m_file = QByteArray(200'000, 'n');
    QTemporaryDir m_programs;
    std::unique_ptr<UpdateCheckView> m_view;
};
