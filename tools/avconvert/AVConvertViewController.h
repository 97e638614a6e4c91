#pragma once

#include "CommandRunner.h"

#include <QVariantMap>
#include <QWidget>

#include <memory>
#include <optional>

class JobList;

namespace Ui
{
class AVConvertViewController;
}

/// Converts one video with one of the system converter's presets.
class AVConvertViewController : public QWidget
{
    Q_OBJECT

public:
    /// The preset list is a property list: title of the output format to name of the preset. A
    /// list that cannot be read leaves the formats empty, and every conversion then fails.
    explicit AVConvertViewController(JobList &jobs, QWidget *parent = nullptr,
                                     const QString &presetList = presetListOfLanguage());
    ~AVConvertViewController() override;

    /// The program's own list in the language of its texts, else in English.
    static QString presetListOfLanguage();

    void sourceSelectAction();
    void outputSelectAction();
    /// Converts. After a success the form is empty before the message is shown. A converter that
    /// cannot be started counts as a failed conversion.
    QCoro::Task<> convertAction();

    /// Idle (true) or working (false). Progress is not touched, convertAction() does that itself.
    void setStatus(bool idle);
    /// Whether the form may run; says in one message box what is missing first.
    bool verify();
    /// Empties both paths; the chosen format stays.
    void clear();

private:
    void awakeFromNib(const QString &presetList);
    void initLocalizables();
    void connectButtons();

    Command convert(const QString &output) const;
    void showProgress(bool shown);

    std::unique_ptr<Ui::AVConvertViewController> ui;
    JobList &m_jobs;
    CommandRunner m_runner;
    std::optional<QVariantMap> avconvertDict;
};
