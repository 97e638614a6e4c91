#pragma once

#include "UpdateChecker.h"

#include <QWidget>

#include <memory>

namespace Ui
{
class UpdateCheckView;
}

/// The controls of the update check; the update page's interface description hosts it.
class UpdateCheckView : public QWidget
{
    Q_OBJECT

public:
    explicit UpdateCheckView(QWidget *parent = nullptr);
    /// With another key than the compiled-in one.
    UpdateCheckView(const QByteArray &publicKey, QWidget *parent);
    ~UpdateCheckView() override;

    /// Where downloads are listed as jobs, and as jobs of which page.
    void setJobs(JobList &jobs, const QString &page) { m_checker.setJobs(jobs, page); }

private:
    void connectButtons();
    void showState();
    void showOffer();
    void showProgress();
    void openFile();

    std::unique_ptr<Ui::UpdateCheckView> ui;
    UpdateChecker m_checker;
};
