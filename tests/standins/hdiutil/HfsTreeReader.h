#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QtEndian>

inline constexpr auto u16 = [](const uchar *at) { return qFromBigEndian<quint16>(at); };
inline constexpr auto u32 = [](const uchar *at) { return qFromBigEndian<quint32>(at); };

// Takes a B-tree with the keys of a catalog apart, from the root and along the leaves, and notes
// what contradicts TN1150 ("B-Trees"). Shares nothing with the writer.
class HfsTreeReader
{
public:
    struct Record {
        quint32 parent;
        QString name;
        const uchar *data;
    };

    HfsTreeReader(const uchar *start, quint64 size);

    QStringList problems() const { return m_problems; }
    QList<Record> records() const { return m_records; } // in the order of the leaves
    quint32 mapNodes() const { return m_mapNodes; }

    // A key, or a thread's place from two bytes before its parent's number on.
    static Record recordAt(const uchar *at);

private:
    void require(bool holds, const QString &problem);
    void readNode(quint32 number, int height, const Record *expectedFirst);
    void readRecords(const uchar *node, int height);
    void checkLeaves(const uchar *header);
    void checkMap();
    quint32 countMap(const uchar *node, int record, quint32 firstBit);
    const uchar *nodeAt(quint32 number) const;
    quint16 offsetIn(const uchar *node, int record) const;

    const uchar *m_start;
    quint32 m_nodeSize = 0;
    quint32 m_totalNodes = 0;
    quint32 m_nodesSeen = 1; // the header
    quint32 m_mapNodes = 0;
    QList<quint32> m_leaves; // in the order of the index
    QList<Record> m_records;
    QStringList m_problems;
};
