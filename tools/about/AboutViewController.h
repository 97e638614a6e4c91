#pragma once

#include "AppsTable.h"
#include "IconCache.h"

#include <QVariantList>
#include <QVariantMap>
#include <QWidget>

#include <memory>
#include <thread>

namespace Ui
{
class AboutViewController;
}

class HintLabel;

/// The page that lists the maker's applications and social links. Made when it is opened for the
/// first time, and loading from then on.
class AboutViewController : public QWidget
{
    Q_OBJECT

public:
    explicit AboutViewController(QWidget *parent = nullptr);
    ~AboutViewController() override; ///< Waits for the load to break off, about a second.

    QVariantMap confDict; ///< The configuration last loaded, as a whole.
    QVariantList data; ///< Its applications.
    QVariantMap socialDict; ///< Its social links.

    void initLocalizables();
    /// The load, on a thread that may wait; its changes to the page are posted in their order.
    void reloadData(const std::stop_token &stop);

    void tableViewSelectionDidChange();
    void goAction(); ///< Opens the address of the selected row.
    void webAction();
    void emailAction();
    void twitterAction();
    void facebookAction();
    void googlePlusAction();

private:
    void awakeFromNib();
    void connectButtons();
    void addHint();
    void setUpTable();
    void beginLoading();
    void endLoading(const QVariantMap &configuration, const QVariantList &apps,
                    const QVariantMap &social, const QString &server);

    std::unique_ptr<Ui::AboutViewController> ui;
    IconCache m_icons;
    AppsTable m_table;
    HintLabel *m_nothingListed; ///< What stands in place of rows where there are none.
    std::jthread m_loader; // last: its destructor waits for the thread, which uses the rest
};
