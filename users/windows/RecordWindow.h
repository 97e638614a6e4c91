#pragma once

#include <QWidget>

#include <memory>

namespace Ui
{
class RecordWindow;
}

/// The window with the record pages. They are created when it opens, so that they follow the rights
/// of the user who is logged in then, and deleted when it closes. It remembers its place and size.
class RecordWindow : public QWidget
{
    Q_OBJECT

public:
    enum class Page { UserGroups, Users, Stock };

    /// Shows this page in the owner's record window and brings that to the front. A window that is
    /// not open is created.
    static void open(Page page, QWidget &owner);
    /// Closes the window if it is open; text typed there is lost.
    static void closeOf(const QWidget &owner);

    ~RecordWindow() override;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    explicit RecordWindow(QWidget &owner);
    static RecordWindow *openOf(const QWidget &owner);

    std::unique_ptr<Ui::RecordWindow> ui;
};
