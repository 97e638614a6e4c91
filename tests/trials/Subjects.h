#pragma once

#include "Maker.h"
#include "MakersServer.h"
#include "TrialRun.h"

#include <QDir>

#include <functional>

/// The files below a folder and their contents.
using Contents = QMap<QString, QByteArray>;
Contents contentsOf(const QDir &folder);

/// One way in which the product writes a file of the user's, as a program to run.
struct Subject {
    QStringList command;
    QString result; ///< The name of what is made, within the folder.
    QByteArray noRoom; ///< Part of what it says when there is no room.
    int success = 0; ///< Its status when all went well.
    int terminated = 143; ///< And when it was asked to end.
    bool replaces = true; ///< It may be asked to write where an older file stands.
    bool saysBegin = false; ///< It writes to standard output as soon as the work itself begins.
    /// What is not whole may stay: unzip works in the folder itself, Qt beside the settings.
    bool leavesParts = false;
    TrialRun::Variables variables = {};
    std::function<void()> prepare = [] {}; ///< Makes what each run uses up.

    /// Empties the folder but for an older file, and makes what a run uses up.
    void restore(QDir folder) const;
    /// What a run that was cut short has done wrong; empty for nothing. `whole` is the result of a
    /// run that was not.
    QString fault(const Contents &before, const Contents &now, const QByteArray &whole) const;
};

/// All of them. Samples lie in the one folder, results are made in the other.
class Subjects
{
public:
    Subjects(const QDir &samples, const QDir &folder);

    QStringList names() const { return m_all.keys(); }
    Subject make(const QString &name);

private:
    Subject image(bool isHfs) const;
    Subject movie() const;
    Subject speech() const;
    Subject unpacking() const;
    Subject placement() const;
    Subject download();
    Subject grant() const;
    Subject window() const;
    QString sample(const QString &name, qsizetype size) const;

    QMap<QString, std::function<Subject()>> m_all;
    QDir m_samples;
    QDir m_folder;
    Maker m_maker;
    MakersServer m_server;
};
