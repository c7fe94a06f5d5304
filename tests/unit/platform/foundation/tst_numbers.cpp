#include "platform/foundation/numbers.h"
#include "tests/support/test_program.h"

#include <QTest>

#include <cmath>
#include <limits>

using platform::floatValue;

class Numbers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheNumberThatATextBeginsWith_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<float>("number");
        const auto row = [](const char *text, float number) {
            QTest::newRow(*text ? text : "empty") << QString::fromUtf8(text) << number;
        };
        row("90", 90);
        row("-90", -90);
        row("+7.5", 7.5F);
        row("12.5deg", 12.5F);
        row("12em", 12);
        row("12e+", 12);
        row("1e2", 100);
        row("1.5E-1x", 0.15F);
        row(".5", 0.5F);
        row("-.25", -0.25F);
        row("5.", 5);
        row("5.e1", 50);
        row(" \t\n 45", 45);
        row("1,5", 1);
        row("1.2.3", 1.2F);
        row("0.1", 0.1F);
        row("16777217", 16777216);
        row("", 0);
        row("abc", 0);
        row("-", 0);
        row(".", 0);
        row("e5", 0);
        row("- 5", 0);
        row("--5", 0);
        row("inf", 0);
        row("-infinity", 0);
        row("nan", 0);
        row("0x10", 0);
        row("90°", 90);
        row("٣", 0);
        row("1e-60", 0);
        row("1e-999", 0);
    }

    void readsTheNumberThatATextBeginsWith()
    {
        QFETCH(QString, text);
        QFETCH(float, number);
        QCOMPARE(floatValue(text), number);
        QCOMPARE(floatValue(QVariant(text)), number);
    }

    void isInfiniteBeyondSinglePrecision()
    {
        constexpr float infinity = std::numeric_limits<float>::infinity();
        QCOMPARE(floatValue(QStringLiteral("1e60")), infinity);
        QCOMPARE(floatValue(QStringLiteral("1e999")), infinity);
        QCOMPARE(floatValue(QStringLiteral("-1e999")), -infinity);
        QCOMPARE(floatValue(QVariant(1e60)), infinity);
        QCOMPARE(floatValue(QVariant(-1e60)), -infinity);
        QCOMPARE(floatValue(QVariant(qInf())), infinity);
        QVERIFY(std::isnan(floatValue(QVariant(qQNaN()))));
    }

    void roundsNumbersToSinglePrecision()
    {
        QCOMPARE(floatValue(QVariant(0.1)), 0.1F);
        QCOMPARE(floatValue(QVariant(-7)), -7.0F);
        QCOMPARE(floatValue(QVariant(16777217)), 16777216.0F);
    }

    void isZeroForWhatIsNoNumber()
    {
        QCOMPARE(floatValue(QVariant()), 0.0F);
        QCOMPARE(floatValue(QVariant(QVariantList{1, 2})), 0.0F);
        QCOMPARE(floatValue(QVariant(QVariantMap{{QStringLiteral("a"), 1}})), 0.0F);
        QCOMPARE(floatValue(QString()), 0.0F);
    }
};

QUORLIN_TEST(Numbers)
#include "tst_numbers.moc"
