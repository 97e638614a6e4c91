#pragma once

#include <QByteArrayView>
#include <QVariant>

#include <optional>

/// Reads property lists, the XML form of the manual page plist(5) and the binary form ("bplist00").
/// Lists come from servers too, so every reader works within limits; what passes one is refused as
/// a whole.
///
/// Values become: dictionary QVariantMap, array QVariantList, string QString, integer qint64 (or
/// quint64 past its end), real double, true/false bool, date QDateTime in UTC, data QByteArray.
/// Any thread.
namespace PropertyList
{

struct Limits {
    /// Bytes of input, and bytes of text and data that may be read out of it: a binary list can
    /// name one long text any number of times.
    qsizetype bytes = 1024 * 1024;
    /// Values in the whole list, counted each time that one is reached, for the same reason.
    int objects = 100'000;
    /// Dictionaries and arrays within one another; a binary list that holds itself ends here.
    int depth = 32;
};

/// The list's top value; none if the bytes are not a property list or pass a limit.
std::optional<QVariant> read(QByteArrayView bytes, const Limits &limits = {});

/// The same for lists whose top value is a dictionary; none if it is of another kind.
std::optional<QVariantMap> readDictionary(QByteArrayView bytes, const Limits &limits = {});

/// The dictionary in a file or resource (":/presets/name.plist"); none if it cannot be read.
std::optional<QVariantMap> readDictionaryFile(const QString &path, const Limits &limits = {});

} // namespace PropertyList
