#include "Question.h"

#include "Mnemonics.h"

#include <QGuiApplication>
#include <QPushButton>

QMessageBox *ask(QWidget *window, const Question &question, std::function<void()> agreed)
{
    const QLatin1String name(question.name);
    if (window->findChild<QMessageBox *>(name))
        return nullptr;
    auto *box = new QMessageBox(QMessageBox::Question, QGuiApplication::applicationDisplayName(),
                                question.text, QMessageBox::NoButton, window);
    box->setObjectName(name);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(question.consequence);
    QPushButton *agree = box->addButton(question.agree, QMessageBox::DestructiveRole);
    QPushButton *decline = box->addButton(question.decline, QMessageBox::RejectRole);
    box->setDefaultButton(decline);
    box->setEscapeButton(decline);
    QObject::connect(agree, &QPushButton::clicked, window, std::move(agreed));
    Mnemonics::keepUnique(box);
    box->open();
    return box;
}
