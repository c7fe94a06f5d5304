#include "platform/foundation/natural_order.h"
#include "tests/support/test_program.h"

#include <QLocale>
#include <QTest>

#include <algorithm>

/** The order of names in lists, in every language. */
class TestNaturalOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sortsAsPeopleExpect_data()
    {
        QTest::addColumn<QLocale>("locale");
        for (const auto &language : {QLocale::C, QLocale::English, QLocale::German, QLocale::Dutch, QLocale::French})
            QTest::newRow(qPrintable(QLocale::languageToString(language))) << QLocale(language);
    }

    void sortsAsPeopleExpect()
    {
        QFETCH(QLocale, locale);
        const QLocale before;
        QLocale::setDefault(locale);
        QStringList names = QStringLiteral("IMG_10 img_9 b IMG_100 Ärger a Zebra img_1").split(QLatin1Char(' '));
        std::sort(names.begin(), names.end(), platform::naturalOrder());
        QLocale::setDefault(before);
        QCOMPARE(names.join(QLatin1Char(' ')), QStringLiteral("a Ärger b img_1 img_9 IMG_10 IMG_100 Zebra"));
    }
};

QUORLIN_TEST(TestNaturalOrder)
#include "tst_natural_order.moc"
