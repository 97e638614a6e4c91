#pragma once

#include <QByteArray>

/// Writes zip archives with whatever names and links a test wants, which no packing program would
/// write. Nothing is compressed. Format: PKWARE's APPNOTE.TXT, sections 4.3.7, 4.3.12 and 4.3.16.
class ZipWriter
{
public:
    void addFile(const QByteArray &name, const QByteArray &content) { add(name, content, 0100644); }
    void addLink(const QByteArray &name, const QByteArray &target) { add(name, target, 0120777); }
    void addFolder(const QByteArray &name) { add(name, {}, 0040755); } ///< Ends in a slash.
    /// A file that says that it is encrypted. What it holds is never read without a password.
    void addSecret(const QByteArray &name) { add(name, QByteArray(20, 'x'), 0100644, 1); }

    QByteArray archive() const;

private:
    void add(const QByteArray &name, const QByteArray &content, quint32 mode, int flags = 0);

    QByteArray m_entries;
    QByteArray m_directory;
    int m_count = 0;
};
