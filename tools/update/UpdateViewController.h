#pragma once

#include "UpdateChecker.h"

#include <QWidget>

#include <memory>

namespace Ui
{
class UpdateCheckView;
class UpdateViewController;
} // namespace Ui

/// The controls of the update check; the update page's interface description hosts it. Whatever
/// a server wrote is shown as plain text.
class UpdateCheckView : public QWidget
{
    Q_OBJECT

public:
    explicit UpdateCheckView(QWidget *parent = nullptr);
    /// With another key than the compiled-in one.
    UpdateCheckView(const QByteArray &publicKey, QWidget *parent);
    ~UpdateCheckView() override;

    /// Downloads are listed in `jobs` as jobs of the page with this object name.
    void setJobs(JobList &jobs, const QString &page) { m_checker.setJobs(jobs, page); }

protected:
    /// An address may have been written into the settings meanwhile.
    bool event(QEvent *event) override;

private:
    void connectButtons();
    void showState();
    void showOffer();
    void showFile();
    void showProgress();
    void openFile();

    std::unique_ptr<Ui::UpdateCheckView> ui;
    UpdateChecker m_checker;
};

/// The page for updates of the program itself. Holds its label and nothing else.
class UpdateViewController : public QWidget
{
    Q_OBJECT

public:
    explicit UpdateViewController(JobList &jobs, QWidget *parent = nullptr);
    ~UpdateViewController() override;

private:
    void awakeFromNib();

    std::unique_ptr<Ui::UpdateViewController> ui;
};
