// Proves which version is offered, and that none is that should not be.

#include "UpdateOffer.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

const UpdateItem good{.version = {1, 4},
                      .shortVersion = u"1.4"_s,
                      .address = "https://h/f",
                      .length = 10,
                      .signature = QByteArray(64, 's')};
const UpdateRules rules{.installed = {1, 2}, .system = {6, 1}, .systemName = u"linux"_s};

} // namespace

class TestUpdateOffer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void offersTheNewestThatSuits()
    {
        UpdateItem newer = good;
        newer.version = {1, 10};
        UpdateItem newest = good;
        newest.version = {2, 0};
        newest.minimumSystem = {7};
        const auto offer = chooseOffer({.items = {good, newest, newer}}, rules);
        QVERIFY(offer);
        QCOMPARE(offer->version, QVersionNumber(1, 10));
        QVERIFY(!chooseOffer({}, rules));
    }

    void judgesEachVersion_data()
    {
        QTest::addColumn<bool>("isOffered");
        QTest::addColumn<UpdateItem>("item");
        const auto row = [](const char *name, bool isOffered, const auto &change) {
            UpdateItem item = good;
            change(item);
            QTest::newRow(name) << isOffered << item;
        };
        row("good", true, [](UpdateItem &) {});
        row("the installed one", false, [](UpdateItem &i) { i.version = {1, 2}; });
        row("an older one", false, [](UpdateItem &i) { i.version = {1, 1, 9}; });
        row("withdrawn", false, [](UpdateItem &i) { i.withdrawn = true; });
        row("for this system", true, [](UpdateItem &i) { i.system = u"linux"_s; });
        row("for another system", false, [](UpdateItem &i) { i.system = u"macos"_s; });
        row("for this system's version", true, [](UpdateItem &i) { i.minimumSystem = {6, 1}; });
        row("for a newer system", false, [](UpdateItem &i) { i.minimumSystem = {6, 2}; });
        row("for another channel", false, [](UpdateItem &i) { i.channel = u"beta"_s; });
        row("signed by half", false, [](UpdateItem &i) { i.signature.chop(1); });
        row("without a length", false, [](UpdateItem &i) { i.length = 0; });
        row("without a file", false, [](UpdateItem &i) { i.address.clear(); });
        row("over plain http", false, [](UpdateItem &i) { i.address = "http://h/f"; });
    }
    void judgesEachVersion()
    {
        QFETCH(UpdateItem, item);
        QFETCH(bool, isOffered);
        QCOMPARE(chooseOffer({.items = {item}}, rules).has_value(), isOffered);
    }

    void obeysTheUsersRules()
    {
        UpdateRules users = rules;
        users.channel = u"beta"_s;
        UpdateItem beta = good;
        beta.channel = u"beta"_s;
        QVERIFY(chooseOffer({.items = {beta}}, users) && chooseOffer({.items = {good}}, users));
        users.withdrawn = {{1, 4}};
        QVERIFY(!chooseOffer({.items = {good}}, users));
    }

    void offersNothingThatTheFeedWithdraws()
    {
        UpdateItem withdrawn = good;
        withdrawn.withdrawn = true;
        QVERIFY(!chooseOffer({.items = {good, withdrawn}}, rules));
    }

    void tellsSafeAddresses()
    {
        for (const char *address : {"https://h/f", "HTTPS://h/f", "http://127.0.0.1/f",
                                    "http://127.0.0.1:8080/f", "http://[::1]:80/f"})
            QVERIFY2(isSafeAddress(address), address);
        for (const char *address :
             {"", "http://h/f", "https://", "https:/", "file:///etc/passwd", "ftp://h/f", "/f",
              "http://127.0.0.1.elsewhere/f", "http://127.0.0.1@elsewhere/f",
              "http://127.0.0.1:80@elsewhere/f", "http://127.0.0.1\\@elsewhere/f",
              "http://[::1]elsewhere/f", " https://h/f", "http://localhost/f"})
            QVERIFY2(!isSafeAddress(address), address);
    }
};

QTEST_GUILESS_MAIN(TestUpdateOffer)
#include "tst_update_offer.moc"
