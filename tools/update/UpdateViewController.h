#pragma once

#include <QWidget>

#include <memory>

namespace Ui
{
class UpdateViewController;
}

class JobList;

/// The page for updates of the program itself. Holds its label and nothing else; the check is the
/// UpdateCheckView that its interface description hosts.
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
