#pragma once

#include <QCoroTask>

class QObject;

/// Starts a page's action from a button. An exception that leaves the action goes to the log with
/// the page's class name; a dropped task would swallow it.
///
///     connect(ui->generateButton, &QPushButton::clicked, this,
///             [this] { startPageAction(this, generate()); });
///
///     QCoro::Task<> ZIPViewController::generate()
///     {
///         if (!verify())
///             co_return;
///         setStatus(false); // before the first await: a second press finds a disabled button
///         const QPointer<ZIPViewController> self(this);
///         const Command command = buildCommand();
///         const JobDescription description{objectName(), ui->titleLabel->text(), ...};
///         const CommandResult result = co_await m_runner.run(command, description);
///         if (!self) // the page died meanwhile: touch no member, not even the runner
///             co_return;
///         ...
///         MiscTool::showAlert(...); // has an event loop of its own: the page may die in it
///         if (!self)
///             co_return;
///         setStatus(true);
///     }
///
/// Rules that keep such a coroutine sound: check `self` after every await and every message box;
/// take parameters by value; let no capturing lambda be a coroutine (the lambda dies at the first
/// await, its captures with it); name values that need a braced list before the await expression,
/// because g++ 12 cannot compile one inside it. What stands before the first await blocks.
///
/// `page` is only asked for its class name, at once.
void startPageAction(const QObject *page, QCoro::Task<> action);
