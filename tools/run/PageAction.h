#pragma once

#include <QCoroTask>

class QObject;

/// Takes over a page's action, which runs already up to its first await: an exception that leaves
/// the action goes to the log with the page's class name. Without this call the exception would be
/// lost.
///
///     connect(ui->generateButton, &QPushButton::clicked, this,
///             [this] { watchPageAction(this, generateAction()); });
///
///     QCoro::Task<> ZIPViewController::generateAction()
///     {
///         if (!verify())
///             co_return;
///         setStatus(false); // before the first await: a second press finds a disabled button
///         const QPointer<ZIPViewController> self(this);
///         const Command command = ...;
///         Job job = m_jobs.begin({objectName(), ui->titleLabel->text(), ...});
///
///         const CommandResult result = co_await m_runner.run(command, job);
///         if (!self) // the page was destroyed meanwhile: use no member, not even the runner
///             co_return;
///         job.end(result.outcome()); // before the message, which may be shown for an hour
///         MiscTool::showAlert(...); // has an event loop of its own: the page may be destroyed in
///         it if (!self)
///             co_return;
///         setStatus(true);
///     }
///
/// Rules for such a coroutine: check `self` after every await and every message box;
/// take parameters by value; let no capturing lambda be a coroutine (the lambda dies at the first
/// await, its captures with it); name values that need a braced list before the await expression,
/// because g++ 12 cannot compile one inside it. Whatever is done before the first await blocks.
///
/// Reads the page's class name at once; the page may be destroyed later.
void watchPageAction(const QObject *page, QCoro::Task<> action);
