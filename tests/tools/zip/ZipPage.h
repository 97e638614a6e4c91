#pragma once

#include "JobList.h"
#include "MessageBoxes.h"
#include "MiscTool.h"
#include "PageControls.h"
#include "ZIPViewController.h"

#include <QComboBox>
#include <QDir>
#include <QTemporaryDir>

using namespace PageControls;

/// The page in a window of its own, with a folder to pack and a place to put the archive.
struct ZipPage {
    ZipPage()
    {
        page.show();
        folder.mkpath(QStringLiteral("source/deep"));
        write(QStringLiteral("source/one.txt"), "one");
        write(QStringLiteral("source/deep/two.txt"), "two");
        fill(page, "srcFolderField", folder.filePath(QStringLiteral("source")));
        fill(page, "outputField", output());
    }

    QComboBox &levels() const { return control<QComboBox>(page, "ratioPopUp"); }
    bool isIdle() const { return control<QWidget>(page, "generateButton").isEnabled(); }

    /// Packs, and waits until the user was told this and the page is idle.
    void packAndExpect(const QString &message)
    {
        MessageBoxes boxes;
        press(page, "generateButton");
        QTRY_COMPARE(boxes.texts, QStringList{message});
        QTRY_VERIFY(isIdle());
    }

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
    /// Sparse, but long to pack.
    void makeLargeFile() const
    {
        QFile large(folder.filePath(QStringLiteral("source/large")));
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(4LL << 30));
    }

    QTemporaryDir own;
    QDir folder{own.path()};
    JobList jobs;
    ZIPViewController page{jobs};
};
