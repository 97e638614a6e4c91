#pragma once

#include "JobList.h"
#include "MessageBoxes.h"
#include "MiscTool.h"
#include "SampleTree.h"
#include "StoredGrant.h"
#include "UserCacheViewController.h"

#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QVBoxLayout>

#include <filesystem>
#include <memory>

/// The page in a window, as the user has it in front of him, and the user's hands. No table of
/// texts is installed, so every text is its key.
class ShownPage
{
public:
    static constexpr int patience = 30'000; ///< Milliseconds, on a machine that has much to do.

    ShownPage() : page(new UserCacheViewController(jobs, &m_window))
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        auto *layout = new QVBoxLayout(&m_window);
        layout->addWidget(page);
        m_window.show();
    }

    template <typename Widget>
    Widget *find(const char *name) const
    {
        return page->findChild<Widget *>(QLatin1String(name));
    }

    QString title(const char *checkBox) const { return find<QCheckBox>(checkBox)->text(); }
    void tick(const char *checkBox, bool ticked = true) const
    {
        find<QCheckBox>(checkBox)->setChecked(ticked);
    }
    bool isIdle() const { return find<QPushButton>("checkButton")->isEnabled(); }

    /// With the mouse; false for a button that cannot be pressed.
    bool press(const char *button) const
    {
        auto *found = find<QPushButton>(button);
        if (!found->isEnabled())
            return false;
        QTest::mouseClick(found, Qt::LeftButton);
        return true;
    }
    /// Presses the button and waits until the work that it starts has ended.
    bool pressAndWait(const char *button) const { return press(button) && waitUntilIdle(); }
    bool waitUntilIdle() const
    {
        return QTest::qWaitFor([this] { return isIdle() && jobs.isEmpty(); }, patience);
    }

    QFileDialog *chooser() const
    {
        return m_window.findChild<QFileDialog *>(QLatin1String("folderChooser"));
    }
    bool answerChooser(const QString &folder) const
    {
        auto *name = chooser()->findChild<QLineEdit *>(QLatin1String("fileNameEdit"));
        name->setText(folder);
        QTest::keyClick(name, Qt::Key_Return);
        return QTest::qWaitFor([this] { return !chooser(); }, patience);
    }
    bool authorize(const QString &folder) const
    {
        return press("authorizeButton") && chooser() && answerChooser(folder);
    }

    JobList jobs;

private:
    QWidget m_window;

public:
    QPointer<UserCacheViewController> page;
};

/// The home folder of this run's user, fresh for each test.
namespace TestHome
{

inline QByteArray path()
{
    return QFile::encodeName(MiscTool::getUserHome());
}

/// Takes away what an earlier test left, settings included.
inline void reset()
{
    if (!SampleTree::whyUnsafe().isEmpty())
        qFatal("%s", qPrintable(SampleTree::whyUnsafe()));
    QCoreApplication::setOrganizationName(QLatin1String("Toolvane"));
    QCoreApplication::setApplicationName(QLatin1String("UserCacheTest"));
    QSettings().clear();
    for (const auto &item : std::filesystem::directory_iterator(path().toStdString())) {
        if (item.path().filename() != ".config")
            std::filesystem::remove_all(item); // of a link, the link alone
    }
}

inline void grant()
{
    const QUrl home = QUrl::fromLocalFile(MiscTool::getUserHome());
    StoredGrant::store(MiscTool::bookmarkForURL(home).value_or(QByteArray()));
}

inline void makeFile(const QByteArray &relative, int bytes)
{
    SampleTree::makeFile(path() + '/' + relative, QByteArray(bytes, 'x'));
}

inline bool exists(const QByteArray &relative)
{
    return SampleTree::exists(path() + '/' + relative);
}

} // namespace TestHome
