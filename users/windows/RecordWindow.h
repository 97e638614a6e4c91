#pragma once

#include <QWidget>

#include <memory>

namespace Ui
{
class RecordWindow;
}

/// The window with the record pages. They are made when it opens, so that they show what the user
/// may do who is logged in then, and are gone when it closes. Remembers its place and size.
class RecordWindow : public QWidget
{
    Q_OBJECT

public:
    enum class Page { UserGroups, Users, Stock };

    /// Brings the owner's record window to the front, made anew unless it is open, with this page.
    static void open(Page page, QWidget &owner);
    /// Closes it, if it is open, with whatever is typed there.
    static void closeOf(const QWidget &owner);

    ~RecordWindow() override;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    explicit RecordWindow(QWidget &owner);
    static RecordWindow *openOf(const QWidget &owner);

    std::unique_ptr<Ui::RecordWindow> ui;
};
