#include "image/ZtImageHandling.h"
#include "tests/support/expected_pictures.h"
#include "tests/support/log_capture.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using platform::ImageSource;

/** Every picture there is, readable or not, through flips and turns into its own type. */
class TurningCorpus : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    QString out() const { return m_folder.filePath(QStringLiteral("out/")); }
    QStringList written() const { return QDir(out()).entryList(QDir::Files | QDir::Hidden); }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        QVERIFY(QDir(m_folder.path()).mkdir(QStringLiteral("out")));
    }

    void survivesEveryPicture_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QSize>("stored");
        QTest::addColumn<bool>("isDecodable");
        for (const expected::Row &row : expected::rows())
            QTest::newRow(qPrintable(row.name)) << row.path << row.stored << row.isDecodable;
    }

    void survivesEveryPicture()
    {
        QFETCH(QString, path);
        QFETCH(QSize, stored);
        QFETCH(bool, isDecodable);
        const qint64 pixels = isDecodable ? qint64(stored.width()) * stored.height() : 0;
        constexpr qint64 large = 1'000'000;
        QStringList operations = {QStringLiteral("7")};
        if (pixels <= large)
            operations << QStringLiteral("horizontal") << QStringLiteral("vertical") << QStringLiteral("90")
                       << QStringLiteral("45");
        const QByteArray before = pictures::bytesOf(path);
        const QString name = QFileInfo(path).fileName();
        for (const QString &operation : std::as_const(operations)) {
            LogCapture log;
            ZtImageHandling service;
            const QString answer =
                operation == QLatin1String("horizontal") ? service.hFlipHorizontalPicture(path, out())
                : operation == QLatin1String("vertical") ? service.hFlipVerticalPicture(path, out())
                                                         : service.hRotatePicture(path, out(), operation);
            const QByteArray said = log.text();
            if (answer == QLatin1String("OK")) {
                const auto result = ImageSource::open(out() + name);
                QVERIFY(result.has_value());
                QVERIFY(result->decode().has_value());
                QCOMPARE(said, QByteArray());
                QCOMPARE(written(), QStringList{name});
                QVERIFY(QFile::remove(out() + name));
            } else {
                QCOMPARE(written(), QStringList());
                QCOMPARE(answer.isNull(), said.startsWith("Image"));
            }
        }
        QCOMPARE(pictures::bytesOf(path), before);
    }
};

QUORLIN_TEST(TurningCorpus)
#include "tst_turning_corpus.moc"
