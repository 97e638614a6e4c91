#pragma once

#include "HfsTreeReader.h"

#include <QByteArray>
#include <QFile>
#include <QList>
#include <QMap>
#include <QStringList>

// A second reading of TN1150 that shares nothing with the writer: takes an HFS Plus image apart the
// way a repair program does. Everything that is wrong becomes a line of problems(); what could be
// read is in items(), by path with "/" between the names and ":" for a "/" in a name.
class HfsReader
{
public:
    struct Item {
        bool isFolder = false;
        bool isLink = false;
        quint16 mode = 0;
        quint32 modified = 0;
        quint64 size = 0;
        quint64 offset = 0; // of the content in the image
    };

    explicit HfsReader(const QString &image);

    QStringList problems() const { return m_problems; }
    QMap<QString, Item> items() const { return m_items; } // without the root folder
    QString volumeName() const { return m_volumeName; }
    bool isCaseSensitive() const { return m_isCaseSensitive; }
    QByteArray content(const QString &path) const;

private:
    struct Fork {
        quint64 size;
        quint64 offset;
        quint32 firstBlock;
        quint32 blocks;
    };
    void require(bool holds, const QString &problem);
    void readHeader();
    Fork fork(const uchar *at, const QString &what);
    using Records = QList<HfsTreeReader::Record>;
    Records readTree(const Fork &file);
    void checkOrder(const Records &records);
    void readThreads(const Records &records);
    void readItem(const HfsTreeReader::Record &record);
    void checkCounts();
    void checkBlocks(const Fork &allocation);
    QString pathOf(quint32 id) const;

    QFile m_file;
    const uchar *m_image = nullptr;
    quint32 m_blocks = 0;
    quint32 m_blockSize = 0;
    QMap<quint32, quint32> m_usedBlocks; // first block and count of every extent
    QMap<quint32, HfsTreeReader::Record> m_threads; // by number of the item
    QMap<quint32, std::pair<quint32, quint32>> m_held; // items and folders found in a folder
    QMap<quint32, std::pair<quint32, quint32>> m_promised; // what its record says
    QMap<QString, Item> m_items;
    QString m_volumeName;
    bool m_isCaseSensitive = false;
    QStringList m_problems;
};
