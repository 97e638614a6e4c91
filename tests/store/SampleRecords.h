#pragma once

#include <QObject>
#include <QString>

/// A record with a double, in the table "Price" of schema/Price.plist.
class PriceSchema
{
    Q_GADGET
    Q_PROPERTY(int ID MEMBER ID)
    Q_PROPERTY(QString Name MEMBER Name)
    Q_PROPERTY(double Amount MEMBER Amount)

public:
    int ID = 0;
    QString Name;
    double Amount = 0;
};

/// Two properties that are not mapped to columns, one of them the last.
class OddSchema
{
    Q_GADGET
    Q_PROPERTY(int ID MEMBER ID)
    Q_PROPERTY(bool Flag MEMBER Flag)
    Q_PROPERTY(QString Name MEMBER Name)
    Q_PROPERTY(qint64 Big MEMBER Big)

public:
    int ID = 0;
    bool Flag = false;
    QString Name;
    qint64 Big = 0;
};
