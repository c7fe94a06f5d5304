#include "platform/foundation/utf8.h"
#include "tests/support/test_program.h"

#include <QTest>

class TestUtf8 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesValidBytes_data();
    void takesValidBytes();
    void refusesInvalidBytes_data();
    void refusesInvalidBytes();
};

void TestUtf8::takesValidBytes_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << QString();
    QTest::newRow("two, three and four bytes") << QStringLiteral("aé写\U0001F600\U0010FFFF");
    QTest::newRow("byte-order mark") << QStringLiteral("\uFEFFa\uFEFF");
    QTest::newRow("no character") << QStringLiteral("\uFFFE\uFFFF\uFDD0");
    QTest::newRow("replacement character") << QStringLiteral("\uFFFD");
    QTest::newRow("null inside") << QStringLiteral("a") + QChar(0) + u'b';
}

void TestUtf8::takesValidBytes()
{
    QFETCH(QString, text);
    const std::optional<QString> read = platform::textFromUtf8(text.toUtf8());
    QVERIFY(read);
    QCOMPARE(*read, text);
    QVERIFY(!read->isNull());
}

void TestUtf8::refusesInvalidBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char *name, const char *hex) { QTest::newRow(name) << QByteArray::fromHex(hex); };
    row("continuation alone", "80");
    row("Latin-1", "6ae97067");
    row("cut short after one", "61c3");
    row("cut short after two", "61e586");
    row("cut short after three", "61f09f98");
    row("overlong slash", "c0af");
    row("overlong null", "c080");
    row("overlong in three", "e080af");
    row("high surrogate", "eda0bd");
    row("surrogate pair", "eda0bdedb880");
    row("above the last", "f4908080");
    row("five bytes", "f888808080");
    row("never in UTF-8", "ff");
    row("UTF-16", "fffe6100");
}

void TestUtf8::refusesInvalidBytes()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!platform::textFromUtf8(bytes));
    QVERIFY(!platform::textFromUtf8("good " + bytes + " good"));
}

QUORLIN_TEST(TestUtf8)
#include "tst_utf8.moc"
