#pragma once

#include <QGroupBox>
#include <QMainWindow>

/// A made-up window that holds every kind of control in every state that the look knows.
class Gallery : public QMainWindow
{
    Q_OBJECT

public:
    Gallery();

    QWidget *page() const { return m_page; }

private:
    void addBars();
    QWidget *newSidebar();
    QLayout *newHeader();
    QGroupBox *newPathBox(const QString &title, const QString &path);
    QGroupBox *newOptionsBox();
    QGroupBox *newDiskBox();
    QWidget *newLists();
    QLayout *newFooter();

    QWidget *m_page;
};
