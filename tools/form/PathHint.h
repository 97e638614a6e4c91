#pragma once

#include "ElidedLabel.h"
#include "PathAdvice.h"

#include <QFutureWatcher>
#include <QTimer>

#include <functional>

class PathField;
class QLineEdit;

/// The line under a path field: says what will not work or will surprise while the field holds it.
/// The file system is asked on a thread of its own, shortly after the text has changed and when the
/// window becomes active; an answer that comes too late is dropped.
class PathHint : public HintLine
{
    Q_OBJECT

public:
    explicit PathHint(QWidget *parent = nullptr);
    ~PathHint() override; ///< Waits for nothing, even if a file system does not answer.

    void watch(PathField &field, PathUse use);
    /// For an output: the field with its source, whose size is compared with the room that is left,
    /// and what will be made in the output folder.
    void setSource(const QLineEdit &source, std::function<QString()> made = {});

protected:
    bool event(QEvent *event) override;

private:
    PathQuestion question() const;
    void askSoon();
    void ask();
    void measure();
    void forgetSize();

    PathField *m_field = nullptr;
    const QLineEdit *m_source = nullptr;
    PathUse m_use = PathUse::SourceFolder;
    std::function<QString()> m_made;
    QTimer m_delay;
    PathQuestion m_asked;
    QFutureWatcher<PathFacts> m_facts;
    QFutureWatcher<qint64> m_size;
    std::optional<qint64> m_needed;
    std::stop_source m_measuring;
};
