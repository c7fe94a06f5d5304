#include "tests/gui/support/window_driver.h"
#include "tests/support/corpus.h"
#include "tests/support/test_program.h"

#include "app/window/preview/compare_preview.h"

#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using window::PictureModel;

/**
 * Pictures that are broken, or made to crash their readers, are added and processed: the window survives, and each
 * row says why.
 */
class BrokenPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void staysWithOwnPictures();
    void staysWithTheCorpus();

private:
    using Facts = QMap<QString, QString>; ///< "yes", "partial" or "no", by the name of a file

    /** What programs of others can make of the pictures that are named in a table of facts. */
    static Facts factsOf(const QString &table)
    {
        Facts facts;
        QFile file(table);
        if (!file.open(QIODevice::ReadOnly))
            return facts;
        const int decodable = int(file.readLine().trimmed().split('\t').indexOf("decodable"));
        while (!file.atEnd()) {
            const QList<QByteArray> cells = file.readLine().split('\t');
            const QString path = QString::fromUtf8(cells[0]);
            facts.insert(path.mid(path.indexOf(u'/') + 1), QString::fromLatin1(cells.value(decodable)));
        }
        return facts;
    }

    void addFrom(const QString &folder);
    void checkRow(int row, const Facts &facts, const QJsonObject &logged) const;
    void addAndRun(const Facts &facts);
    QList<QJsonObject> logRows() const;

    std::unique_ptr<WindowDriver> m_driver;
};

void BrokenPictures::addFrom(const QString &folder)
{
    for (QDirIterator files(folder, QDir::Files); files.hasNext();) {
        const QString path = files.next();
        QVERIFY(QFile::copy(path, m_driver->inputFolder() + u'/' + files.fileName()));
    }
}

QList<QJsonObject> BrokenPictures::logRows() const
{
    QList<QJsonObject> rows;
    QFile log(m_driver->folder() + QStringLiteral("/.local/share/quorlin/log.jsonl"));
    if (!log.open(QIODevice::ReadOnly))
        return rows;
    for (const QByteArray &line : log.readAll().trimmed().split('\n'))
        rows.append(QJsonDocument::fromJson(line).object());
    return rows;
}

void BrokenPictures::checkRow(int row, const Facts &facts, const QJsonObject &logged) const
{
    const QString name = m_driver->cell(row, PictureModel::Name);
    const QString said = m_driver->cell(row, PictureModel::Status);
    const QString told = name + QStringLiteral(" (") + facts.value(name) + QStringLiteral("): ") + said;
    const bool isMade = said == QLatin1String("OK") || said.startsWith(QLatin1String("OK, "));
    const bool hasReason =
        said.startsWith(QLatin1String("Failed: ")) || said.startsWith(QLatin1String("Not Supported: "));
    QVERIFY2(isMade || hasReason, qPrintable(told));
    // Photoshop's files can be read and not written: sound ones are refused for that reason alone.
    const bool isOnlyRead =
        name.endsWith(QLatin1String(".psd")) &&
        said == QLatin1String("Not Supported: Photoshop cannot be written, choose another file type");
    QVERIFY2(isMade ? facts.value(name) != QLatin1String("no")
                    : isOnlyRead || facts.value(name) != QLatin1String("yes"),
             qPrintable(told));
    QCOMPARE(logged[QLatin1String("input")].toString(), name);
    QVERIFY2(isMade == logged[QLatin1String("reason")].toString().isEmpty(), qPrintable(told));
    qInfo("%s", qPrintable(told));
}

void BrokenPictures::addAndRun(const Facts &facts)
{
    m_driver->drop({m_driver->inputFolder()});
    const int rows = m_driver->pictures().model()->rowCount();
    const auto isPlanned = [&] {
        for (int row = 0; row < rows; ++row)
            if (m_driver->cell(row, PictureModel::Status).isEmpty())
                return false;
        return true;
    };
    QVERIFY(m_driver->waitFor(isPlanned, 60'000));
    for (int row = 0; row < rows; ++row) {
        m_driver->pictures().step(1);
        QTest::qWait(20);
    }
    m_driver->click("startButton");
    const QString summary = m_driver->waitForSummary();
    QVERIFY(!summary.isEmpty());
    const QList<QJsonObject> logged = logRows();
    QCOMPARE(logged.size(), rows);
    for (int row = 0; row < rows; ++row)
        checkRow(row, facts, logged[row]);
    // It continues with others as before.
    QImage image(90, 60, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    const QString sound = m_driver->folder() + QStringLiteral("/sound.png");
    QVERIFY(image.save(sound));
    m_driver->click("dismissButton");
    m_driver->trigger("clearAction");
    m_driver->drop({sound});
    m_driver->click("startButton");
    QVERIFY(m_driver->waitForSummary().startsWith(QStringLiteral("1 picture done")));
}

void BrokenPictures::staysWithOwnPictures()
{
    const QString table = ownPicturesFolder() + QStringLiteral("/EXPECT.tsv");
    m_driver = WindowDriver::started();
    addFrom(ownPicturesFolder() + QStringLiteral("/broken"));
    addAndRun(factsOf(table));
}

void BrokenPictures::staysWithTheCorpus()
{
    if (!tests::isSlowRun())
        QSKIP("takes long");
    SKIP_WITHOUT_CORPUS();
    Facts facts = factsOf(corpusPath("EXPECT.tsv"));
    facts.insert(factsOf(corpusPath("found/EXPECT.tsv")));
    m_driver = WindowDriver::started();
    addFrom(corpusPath("broken"));
    addFrom(corpusPath("found"));
    addAndRun(facts);
}

QUORLIN_GUI_TEST(BrokenPictures)

#include "tst_broken_pictures.moc"
