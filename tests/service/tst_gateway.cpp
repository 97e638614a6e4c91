// Proves that the application's own gateway and the real service understand each other.

#include "BLGeneral.h"
#include "DB.h"
#include "Http.h"
#include "MiscTool.h"
#include "UserGroupSchema.h"
#include "UserSchema.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

/// A service with an empty database, and the address that it prints with its first account.
class Service
{
public:
    Service()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_STATE_HOME"_s,
                           qEnvironmentVariable("TOOLVANE_TEST_SANDBOX") + "/state"_L1);
        m_process.setProcessEnvironment(environment);
        m_process.setStandardErrorFile(QProcess::nullDevice());
        m_process.start(QStringLiteral(TOOLVANE_BUILD_DIR "/bin/toolvane-records"),
                        {u"serve"_s, u"--listen"_s, u"127.0.0.1:0"_s});
        while (!m_said.contains("ready") && m_process.waitForReadyRead())
            m_said += m_process.readAllStandardOutput();
    }
    ~Service()
    {
        m_process.terminate();
        m_process.waitForFinished();
    }

    QString address() const
    {
        const qsizetype begin = m_said.indexOf("http://toolvane:");
        return QString::fromLatin1(m_said.sliced(begin, m_said.indexOf('\n', begin) - begin));
    }

private:
    QProcess m_process;
    QByteArray m_said;
};

UserSchema user(const QString &name, int groupID = 0)
{
    return {0, 0, groupID, MiscTool::encode2UTF8(name), u"pw"_s, u""_s};
}

QStringList names(BLGeneral &gateway, const QString &clause)
{
    QStringList names;
    const auto users = gateway.select(clause, UserSchema{});
    for (const UserSchema &one : *users)
        names += *MiscTool::decodeFromUTF8(one.User);
    return names;
}

} // namespace

class TestGateway : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(!m_service.address().isEmpty());
        DB::open(m_service.address());
    }

    void recordsAreWrittenAndFound()
    {
        BLGeneral users(u"User"_s);
        QVERIFY(users.initTable());
        const QStringList odd = {u"alice"_s, u"Zoë & Jürg=1?"_s, u"100% \"<a+b>\""_s,
                                 u"\\ {}|^ \U0001F600"_s};
        for (const QString &name : odd)
            QVERIFY2(users.insert(user(name, 7)), qPrintable(name));
        QCOMPARE(names(users, u"1=1"_s), odd);
        for (const QString &name : odd)
            QCOMPARE(names(users, "User='"_L1 + MiscTool::encode2UTF8(name) + u'\''),
                     QStringList(name));
        UserSchema first = users.select("ID=1", UserSchema{})->first();
        QCOMPARE(first.UserGroupID, 7);
        first.Memo = u"changed"_s;
        QVERIFY(users.update(first));
        QCOMPARE(users.select("Memo = 'changed' AND UserGroupID IN (7,8)", UserSchema{})->size(),
                 1);
        QVERIFY(users.delete_("ID=1"));
        QCOMPARE(names(users, u"1=1 ORDER BY ID DESC"_s), QStringList({odd[3], odd[2], odd[1]}));
    }

    void refusalsAreNoSuccess()
    {
        BLGeneral users(u"User"_s);
        QCOMPARE(users.execHTTP(user(u"twice"_s)), 0);
        QCOMPARE(users.execHTTP(user(u"twice"_s)), 4);
        QVERIFY(!users.insert(user(u"twice"_s)));
        UserSchema missing = user(u"missing"_s);
        missing.ID = 12345;
        QCOMPARE(users.execHTTP(missing), 3);
        QCOMPARE(users.deleteHTTP("ID=12345"), 3);
        QCOMPARE(users.deleteHTTP("1=1"), 6);
        QCOMPARE(users.deleteHTTP("User='a' OR lower(User)='b'"), 2);
        QCOMPARE(users.deleteHTTP(QString(70'000, u'x')), 1);
        QCOMPARE(users.deleteHTTP(QString(300'000, u'%')), 1);
        UserSchema cut = user(u"cut"_s);
        cut.Memo = u"é"_s; // not escaped, so the body is cut
        QCOMPARE(users.execHTTP(cut), 1);
        cut.Memo = QString(65'536, u'x');
        QCOMPARE(users.execHTTP(cut), 1);
        cut.Memo = QString(4'000'000, u'x');
        QCOMPARE(users.execHTTP(cut), 1);
        QCOMPARE(BLGeneral(u"Nothing"_s).execHTTP(user(u"a"_s)), 1);
        DB::open(m_service.address().replace(u"toolvane:"_s, u"toolvane:x"_s));
        QCOMPARE(users.execHTTP(user(u"stranger"_s)), 6);
        QVERIFY(users.select("1=1", UserSchema{})->isEmpty());
        DB::open(m_service.address());
    }

    void pagesAreThoseOfTheLocalStore()
    {
        BLGeneral groups(u"UserGroup"_s);
        for (int i = 0; i < 25; ++i)
            QVERIFY(groups.insert(UserGroupSchema{0, 0, QString::number(i), u"A1"_s, u""_s}));
        const auto keys = [&groups](int from, int step) {
            QList<int> found;
            const auto page = groups.select("1=1", UserGroupSchema{}, from, step);
            for (const UserGroupSchema &group : *page)
                found += group.ID;
            return found;
        };
        QCOMPARE(keys(0, 10).size(), 12);
        QCOMPARE(keys(20, 10), QList<int>({21, 22, 23, 24, 25, 1, 2, 3, 4, 5, 6}));
    }

private:
    Service m_service;
};

QTEST_GUILESS_MAIN(TestGateway)
#include "tst_gateway.moc"
