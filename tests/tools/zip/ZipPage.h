#pragma once

#include "JobList.h"
#include "MiscTool.h"
#include "ZIPViewController.h"

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

/// The page in a window of its own, with a folder to pack and a place to put the archive.
struct ZipPage {
    ZipPage()
    {
        page.show();
        folder.mkpath(QStringLiteral("source/deep"));
        write(QStringLiteral("source/one.txt"), "one");
        write(QStringLiteral("source/deep/two.txt"), "two");
        set("srcFolderField", folder.filePath(QStringLiteral("source")));
        set("outputField", output());
    }

    template <typename Widget = QWidget>
    Widget *find(const char *name)
    {
        auto *widget = page.findChild<Widget *>(QLatin1String(name));
        if (!widget)
            qFatal("the page has no %s", name);
        return widget;
    }
    void set(const char *field, const QString &text) { find<QLineEdit>(field)->setText(text); }
    QString text(const char *field) { return find<QLineEdit>(field)->text(); }

    void press(const char *button)
    {
        auto *found = find<QPushButton>(button);
        QVERIFY2(found->isEnabled(), button);
        QTest::mouseClick(found, Qt::LeftButton);
    }
    bool isIdle() { return find("generateButton")->isEnabled(); }

    QString output() const { return folder.filePath(QStringLiteral("out.zip")); }
    QString temporary() const
    {
        return QDir(MiscTool::getAppDocumentFolder()).filePath(QStringLiteral("out.zip"));
    }
    void write(const QString &name, const QByteArray &content) const
    {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(name));
    }

    QTemporaryDir own;
    QDir folder{own.path()};
    JobList jobs;
    ZIPViewController page{jobs};
};

/// The names in an archive, as the unzip program reads them; none when it finds a fault.
inline QStringList namesInArchive(const QString &archive)
{
    QProcess unzip;
    unzip.start(QStringLiteral("unzip"), {QStringLiteral("-tqq"), archive});
    unzip.waitForFinished();
    if (unzip.exitCode() != 0)
        return {};
    unzip.start(QStringLiteral("unzip"), {QStringLiteral("-Z1"), archive});
    unzip.waitForFinished();
    QStringList names =
        QString::fromUtf8(unzip.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    names.sort();
    return names;
}
