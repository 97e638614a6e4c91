#pragma once

#include "CommandRunner.h"

#include <QWidget>

#include <memory>

class JobList;

namespace Ui
{
class ImageForm;
}

/// What the pages that make an image file of a folder have in common, which is nearly everything.
/// A page's own interface description holds its header and a place for the shared form.
class ImageViewController : public QWidget
{
    Q_OBJECT

public:
    ~ImageViewController() override;

    void srcSelectAction(); ///< Also names the volume after the chosen folder.
    void outputSelectAction();
    void clearAction();
    /// Makes the image. The page is idle before the message is shown. A file at the output path is
    /// replaced once the image is complete.
    QCoro::Task<> generateAction();

    /// Idle (true) or working (false).
    void setStatus(bool idle);
    /// Whether the form may run; says in one message box what is missing first.
    bool verify();

protected:
    enum class FileSystem {
        Hfs, ///< One plain HFS volume.
        Hybrid, ///< Whatever the program puts into an image that several systems can read.
    };
    /// What one page's images are.
    struct Kind {
        const char *nameKey; ///< The page's name in the table of texts.
        QString suffix; ///< Of the image file, without the dot.
        FileSystem fileSystem;
    };

    /// The list outlives the page: it keeps what is left of a run when the page goes.
    ImageViewController(JobList &jobs, const Kind &kind, QWidget *parent);
    /// Puts the form into its place on the page. A page calls it once, last in its constructor.
    void awakeFromNib(QWidget &formPlace);

private:
    void connectForm();
    void setSourceFolder(const QString &path);
    Command makeHybrid(const QString &output) const;

    const Kind m_kind;
    std::unique_ptr<Ui::ImageForm> ui;
    JobList &m_jobs;
    CommandRunner m_runner;
};
