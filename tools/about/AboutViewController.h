#pragma once

#include "AppIcons.h"
#include "AppsTable.h"

#include <QUrl>
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
struct AppsList;

/// The page that lists the maker's applications and social links. Made when it is opened for the
/// first time, loading from then on, and again whenever the user wants.
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
    /// The load, on a thread that may wait; its changes to the page are posted in their order. A
    /// failure is silent: the list is the one of the last time, or empty.
    void reloadData(const std::stop_token &stop);

    /// Choosing a row, with the mouse or the keyboard, opens its address at once.
    void tableViewSelectionDidChange();
    void goAction(); ///< Opens the address of the selected row.
    void reloadAction(); ///< Loads once more; does nothing while it loads.
    /// A link that is missing, or that leads to anything but the web or a mail, opens nothing; its
    /// button is disabled.
    void webAction() { open(socialAddress("Web")); }
    void emailAction() { open(socialAddress("Email", "mailto:")); }
    void twitterAction() { open(socialAddress("Twitter")); }
    void facebookAction() { open(socialAddress("Facebook")); }
    void googlePlusAction() { open(socialAddress("Google+")); }

private:
    void awakeFromNib();
    void connectButtons();
    void addHint();
    void setUpTable();
    void beginLoading();
    void endLoading(const AppsList &list, const QString &server);
    void enableButtons();
    QUrl socialAddress(const char *key, const char *scheme = "") const;
    static void open(const QUrl &address); ///< An empty one opens nothing.

    std::unique_ptr<Ui::AboutViewController> ui;
    AppIcons m_icons;
    AppsTable m_table;
    bool m_isLoading = false;
    HintLabel *m_nothingListed; ///< Shown in place of the rows if there are none.
    std::jthread m_loader; // last: its destructor waits for the thread, which uses the rest
};
