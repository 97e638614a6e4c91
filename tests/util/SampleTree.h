#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

/// Trees for the tests of walks over folders, made inside the test run's own sandbox. Paths are
/// bytes.
namespace SampleTree
{

/// Empty where this process may destroy things: the sandbox is there and the home folder of the
/// user database lies in it. Otherwise what is wrong.
QString whyUnsafe();

/// A new empty folder below the sandbox. Nobody removes it before the sandbox goes.
QByteArray makeRoot();

void makeFolder(const QByteArray &path); ///< With its parents.
void makeFile(const QByteArray &path, const QByteArray &content); ///< With its parents.
void makeLink(const QByteArray &path, const QByteArray &target);
/// Some folders and files two levels deep; gives the number of items, the top not counted.
int makeNested(const QByteArray &top, int folders, int filesEach);
/// A chain of folders, each named by name and holding one file "f" of one byte.
void makeChain(const QByteArray &top, int levels, const QByteArray &name);

bool exists(const QByteArray &path); ///< Of a link itself.

/// Everything below a folder by relative path, with kind, mode, number of names and the
/// content's hash or the link's target.
using Snapshot = QMap<QByteArray, QByteArray>;
Snapshot snapshot(const QByteArray &top);
/// The relative paths that only one of them has or that differ.
QList<QByteArray> difference(const Snapshot &before, const Snapshot &after);

} // namespace SampleTree
