#include "platform/values/fields.h"

#include "tests/support/raised_text.h"
#include "tests/support/test_program.h"

#include <QTest>

using platform::Fields;

class TestFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsByTypes();
    void takesTheOtherValueForWhatIsMissing();
    void refusesOtherTypes_data();
    void refusesOtherTypes();
    void refusesWhatIsNoDictionary();

private:
    const QVariantMap m_map{{QStringLiteral("a"), QStringLiteral("x")},
                            {QStringLiteral("b"), true},
                            {QStringLiteral("c"), 7},
                            {QStringLiteral("d"), 5e9},
                            {QStringLiteral("l"), QVariantList{1, 2}},
                            {QStringLiteral("n"), QVariant()}};
    const Fields m_fields{m_map, QStringLiteral("o")};
};

void TestFields::readsByTypes()
{
    QCOMPARE(m_fields.text("a"), QStringLiteral("x"));
    QCOMPARE(m_fields.truth("b", false), true);
    QCOMPARE(m_fields.whole("c", 0), 7);
    QCOMPARE(m_fields.number("c", 0), 7.0);
    QCOMPARE(m_fields.number("d", 0), 5e9);
    QCOMPARE(m_fields.list("l").size(), 2);
    const Fields words(QVariantMap{{QStringLiteral("ä"), QStringLiteral("x")}, {QStringLiteral("n"), QVariant()}}, {});
    QCOMPARE(words.everyText(),
             (QMap<QString, QString>{{QStringLiteral("ä"), QStringLiteral("x")}, {QStringLiteral("n"), {}}}));
}

void TestFields::takesTheOtherValueForWhatIsMissing()
{
    for (const char *key : {"n", "missing"}) {
        QVERIFY(m_fields.text(key).isNull() && m_fields.list(key).isEmpty());
        QVERIFY(m_fields.truth(key, true) && !m_fields.truth(key, false));
        QCOMPARE(m_fields.whole(key, -1), -1);
        QCOMPARE(m_fields.number(key, -1.5), -1.5);
    }
}

void TestFields::refusesOtherTypes_data()
{
    QTest::addColumn<std::function<void()>>("read");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *error, const std::function<void()> &read) {
        QTest::newRow(error) << read << QStringLiteral("TypeError: ") + QString::fromLatin1(error);
    };
    row("Expected text for o.c but received 7", [this] { (void)m_fields.text("c"); });
    row("Expected text for o.b but received true", [this] { (void)m_fields.everyText(); });
    row("Expected a list for o.b but received true", [this] { (void)m_fields.list("b"); });
    row("Expected true or false for o.a but received \"x\"", [this] { (void)m_fields.truth("a", true); });
    row("Expected a whole number for o.d but received 5e+09", [this] { (void)m_fields.whole("d", 0); });
    row("Expected a number for o.l but received a list", [this] { (void)m_fields.number("l", 0); });
    row("Expected a number for o.b but received true", [this] { (void)m_fields.number("b", 0); });
    row("Expected \"y\" for o.a but received \"x\"", [this] { m_fields.reject("\"y\"", "a"); });
}

void TestFields::refusesOtherTypes()
{
    QFETCH(std::function<void()>, read);
    QTEST(raisedBy(read), "error");
}

void TestFields::refusesWhatIsNoDictionary()
{
    QCOMPARE(raisedBy([] { const Fields fields(7, QStringLiteral("o")); }),
             QStringLiteral("TypeError: Expected a dictionary for o but received 7"));
}

QUORLIN_TEST(TestFields)
#include "tst_fields.moc"
