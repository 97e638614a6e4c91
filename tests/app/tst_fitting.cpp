// Proves that no text is clipped and nothing lies outside its window, in every language, in small
// windows, and with large fonts.

#include "Application.h"
#include "ContainerBox.h"
#include "HoverTableAppDelegate.h"
#include "HoverTableRowView.h"
#include "HoverTableView.h"
#include "Scenes.h"
#include "Theme.h"

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace
{

bool popUpFits(const QComboBox &popUp)
{
    QStyleOptionComboBox option;
    option.initFrom(&popUp);
    const QRect field = popUp.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                      QStyle::SC_ComboBoxEditField, &popUp);
    return popUp.fontMetrics().horizontalAdvance(popUp.currentText()) <= field.width()
        && popUp.fontMetrics().height() <= field.height();
}

// Long names may be shortened: the whole text is in a tool tip then.
bool fits(const QWidget &widget)
{
    const QSize size = widget.size();
    const auto holds = [&size](const QSize &needed) { return size.expandedTo(needed) == size; };
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return qobject_cast<const ElidedLabel *>(&widget) || label->text().isEmpty()
            || (label->wordWrap() ? size.height() >= label->heightForWidth(size.width())
                                  : holds(label->sizeHint()));
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return button->text().isEmpty() || holds(button->minimumSizeHint());
    if (const auto *popUp = qobject_cast<const QComboBox *>(&widget))
        return popUpFits(*popUp);
    if (const auto *box = qobject_cast<const QGroupBox *>(&widget))
        return box->fontMetrics().horizontalAdvance(box->title()) <= box->width();
    if (qobject_cast<const QLineEdit *>(&widget))
        return size.height() >= widget.minimumSizeHint().height();
    return true;
}

// Widgets of one layout that overlap would show one text on top of another.
bool overlapsASibling(const QWidget &widget)
{
    const QLayout *layout = widget.parentWidget() ? widget.parentWidget()->layout() : nullptr;
    if (!layout || layout->indexOf(&widget) < 0)
        return false;
    for (int i = 0; i < layout->count(); ++i) {
        const QWidget *other = layout->itemAt(i)->widget();
        if (other && other != &widget && other->isVisible()
            && other->geometry().intersects(widget.geometry())
            && other->geometry() != widget.geometry())
            return true;
    }
    return false;
}

bool liesInItsParent(const QWidget &widget)
{
    const QWidget *parent = widget.parentWidget();
    return qobject_cast<const QAbstractScrollArea *>(parent->parentWidget()) // it may scroll
        || parent->rect().adjusted(-1, -1, 1, 1).contains(widget.geometry());
}

QStringList misfits(const QString &where, const QWidget &window)
{
    QStringList found;
    for (const QWidget *widget : Scenes::shownIn(window)) {
        const QString what = where + u": "_s + Scenes::described(*widget);
        if (!fits(*widget))
            found += what + u"is clipped in %1x%2: "_s.arg(widget->width()).arg(widget->height())
                + widget->property("text").toString();
        if (!liesInItsParent(*widget) || overlapsASibling(*widget))
            found += what + u"lies outside its place"_s;
        const auto *scroller = qobject_cast<const PageScroller *>(widget);
        if (scroller && scroller->horizontalScrollBar()->maximum() > 0)
            found += what + u"scrolls sideways"_s;
    }
    return found;
}

} // namespace

class TestFitting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Scenes::prepare(); }

    void nothingIsClipped_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<qreal>("fontScale");
        for (const QString &language : Scenes::languages()) {
            QTest::newRow(qPrintable(language)) << language << 1.0;
            QTest::newRow(qPrintable(language + u", large"_s)) << language << 1.3;
        }
    }

    void nothingIsClipped()
    {
        QFETCH(QString, language);
        QFETCH(qreal, fontScale);
        const Scenes::Language inUse(language);
        const QFont usual = QApplication::font();
        QFont font = usual;
        font.setPointSizeF(usual.pointSizeF() * fontScale);
        Theme::setFont(font);
        Application application;
        application.start();
        QStringList found;
        for (const QSize size : {QSize(820, 560), QSize(1040, 680)}) {
            application.window().resize(size);
            Scenes::visit(application, [&](const QString &scene, const QWidget &window) {
                found += misfits(u"%1, %2"_s.arg(size.width()).arg(scene), window);
            });
            QCOMPARE(application.window().size(), size);
        }
        Theme::setFont(usual);
        QVERIFY2(found.isEmpty(), qPrintable(found.join(u'\n')));
    }

    void openWindowsFollowTheFont()
    {
        Application application;
        application.start();
        application.tools().selectTool(1); // from now on each name has a font of its own
        const QFont usual = QApplication::font();
        QFont larger = usual;
        larger.setPointSizeF(usual.pointSizeF() + 6);
        Theme::setFont(larger);
        Scenes::settle();
        const QStringList found = misfits(u"after the change"_s, application.window());
        ElidedLabel &name = *application.window().tableView().rowView(1)->textField();
        const QFont followed = name.font();
        QFont broken = followed;
        broken.setPointSizeF(13.7);
        name.setFont(broken);
        application.tools().selectTool(0);
        Theme::setFont(usual);
        QVERIFY2(found.isEmpty(), qPrintable(found.join(u'\n')));
        QCOMPARE(followed.pointSizeF(), larger.pointSizeF());
        QVERIFY(followed.bold() && !name.font().bold());
        QCOMPARE(name.font().pointSizeF(), 13.0); // whole from then on
    }

    void pagesScrollOnlyWhenTheyMust()
    {
        QWidget page;
        auto *layout = new QVBoxLayout(&page);
        QList<QLineEdit *> fields;
        for (int i = 0; i < 6; ++i)
            layout->addWidget(fields.emplaceBack(new QLineEdit));
        PageScroller scroller(&page);
        scroller.resize(400, 150);
        scroller.show();
        QVERIFY(QTest::qWaitForWindowActive(&scroller));
        QTRY_VERIFY(scroller.verticalScrollBar()->isVisible());
        fields.last()->setFocus();
        const QRect last(fields.last()->mapTo(scroller.viewport(), QPoint()),
                         fields.last()->size());
        QVERIFY(scroller.viewport()->rect().contains(last));
        for (int i = 0; i < 5; ++i)
            fields.at(i)->hide(); // needs less now
        QTRY_VERIFY(!scroller.verticalScrollBar()->isVisible());
        QCOMPARE(page.size(), scroller.size());
        page.setParent(nullptr);
    }
};

QTEST_MAIN(TestFitting)
#include "tst_fitting.moc"
