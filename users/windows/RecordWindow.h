#pragma once

#include <QWidget>

#include <memory>

namespace Ui
{
class RecordWindow;
}

class AbstractViewController;

/// The window with the record pages. They are created when it opens, so that they follow the rights
/// of the user who is logged in then, and deleted when it closes. A page loads its records again
/// whenever it comes into sight. If a web service keeps the records, a line says where and whether
/// it answers; meanwhile nothing can be changed. The sheets of the window do not block its owner.
/// It remembers its place and size.
class RecordWindow : public QWidget
{
    Q_OBJECT

public:
    enum class Page { UserGroups, Users, Stock };

    /// Shows this page in the owner's record window and brings that to the front. A window that is
    /// not open is created; one with an open sheet keeps its page.
    static void open(Page page, QWidget &owner);
    /// Closes the window if it is open; text typed there is lost.
    static void closeOf(const QWidget &owner);

    ~RecordWindow() override;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    explicit RecordWindow(QWidget &owner);
    static RecordWindow *openOf(const QWidget &owner);
    AbstractViewController *shownPage() const;
    void showPage(Page page);
    void stayIndependent();
    void watchService(const QString &address);

    std::unique_ptr<Ui::RecordWindow> ui;
};
