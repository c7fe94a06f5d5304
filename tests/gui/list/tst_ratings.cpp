#include "tests/gui/clicks/hand.h"
#include "tests/gui/support/window_driver.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include "meta/metadata_file.h"

#include <QFile>
#include <QHeaderView>
#include <QImage>
#include <QLineEdit>
#include <QTest>

using window::PictureModel;

/** Pictures are culled by keys: rated, sorted and filtered by stars, and sorted into folders by them. */
class Ratings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_driver.reset(); }

    void keysRateTheChosenRows();
    void keysGoThroughTheWindow();
    void sortsByStars();
    void worksOnTheBestOnly();
    void sortsIntoFoldersByStars();
    void keysBelongToTheFieldAndToFolders();
    void starsAreWrittenIntoFilesAndTakenOutAgain();
    void noFileIsWrittenUnasked();

private:
    void begin(const char *action = "resize")
    {
        m_driver = WindowDriver::showing(action);
        QImage image(300, 200, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        for (const char *name : {"a.png", "b.png", "c.png"})
            QVERIFY(image.save(m_driver->inputFolder() + u'/' + QString::fromLatin1(name)));
        m_driver->drop({m_driver->inputFolder()});
        QCOMPARE(m_driver->pictures().model()->rowCount(), 3);
    }

    QString path(const char *name) const { return m_driver->inputFolder() + u'/' + QString::fromLatin1(name); }

    /** What the file itself says. */
    QString writtenIn(const char *name)
    {
        const auto read = meta::readFields(path(name));
        if (!read)
            return QStringLiteral("unreadable");
        const QVariantMap rating =
            read->value(QStringLiteral("fields")).toMap().value(QStringLiteral("rating")).toMap();
        return rating.value(QStringLiteral("value")).toStringList().join(u' ');
    }

    /** Uses the command, and answers its question. */
    void writeRatings(const char *answer)
    {
        auto *entry = m_driver->control<QAction>("writeRatingsAction");
        QVERIFY(m_driver->waitFor([entry] { return entry->isEnabled(); }));
        WindowDriver::answerNextQuestion(QString::fromLatin1(answer));
        entry->trigger();
    }

    /** Rates the row of the list as it is shown. */
    void rate(int row, int stars)
    {
        auto &list = m_driver->pictures();
        list.setFocus();
        list.selectRow(row);
        QTest::keyClick(&list, Qt::Key(Qt::Key_0 + stars));
    }

    QStringList ratings()
    {
        QStringList all;
        for (int row = 0; row < m_driver->pictures().model()->rowCount(); ++row)
            all.append(m_driver->cell(row, PictureModel::Name) + u' ' + m_driver->cell(row, PictureModel::Rating));
        return all;
    }

    std::unique_ptr<WindowDriver> m_driver;
};

void Ratings::keysRateTheChosenRows()
{
    begin();
    auto &list = m_driver->pictures();
    QVERIFY(list.isColumnHidden(PictureModel::Rating));
    rate(1, 3);
    QCOMPARE(ratings().join(u'|'), QStringLiteral("a.png |b.png ★★★|c.png "));
    QVERIFY(!list.isColumnHidden(PictureModel::Rating));
    const QModelIndex cell = list.model()->index(1, PictureModel::Rating);
    QCOMPARE(cell.data(Qt::AccessibleTextRole).toString(), QStringLiteral("3 stars"));
    rate(1, 1);
    QCOMPARE(cell.data(Qt::AccessibleTextRole).toString(), QStringLiteral("1 star"));
    list.selectAll();
    QTest::keyClick(&list, Qt::Key_5);
    QCOMPARE(ratings().join(u'|'), QStringLiteral("a.png ★★★★★|b.png ★★★★★|c.png ★★★★★"));
    // The arrow keys go on to the next picture, as culling goes.
    list.selectRow(0);
    QTest::keyClick(&list, Qt::Key_2);
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_4);
    QCOMPARE(ratings().join(u'|'), QStringLiteral("a.png ★★|b.png ★★★★|c.png ★★★★★"));
    list.selectAll();
    QTest::keyClick(&list, Qt::Key_5);
    QTest::keyClick(&list, Qt::Key_6);
    QCOMPARE(ratings().first(), QStringLiteral("a.png ★★★★★"));
    QTest::keyClick(&list, Qt::Key_0);
    QCOMPARE(ratings().join(u'|'), QStringLiteral("a.png |b.png |c.png "));
    QVERIFY(list.isColumnHidden(PictureModel::Rating));
}

// A rating shows a column; the arrow keys go on from the row all the same.
void Ratings::keysGoThroughTheWindow()
{
    begin();
    clicks::Hand hand;
    auto &list = m_driver->pictures();
    hand.click(*list.viewport(), list.visualRect(list.model()->index(0, PictureModel::Name)).center());
    for (const char *key : {"3", "Down", "4", "Down", "5"})
        hand.press(QString::fromLatin1(key));
    QCOMPARE(ratings().join(u'|'), QStringLiteral("a.png ★★★|b.png ★★★★|c.png ★★★★★"));
    QCOMPARE(list.currentPlace(), 3);
}

void Ratings::sortsByStars()
{
    begin();
    rate(0, 2);
    rate(2, 5);
    m_driver->pictures().sortByColumn(PictureModel::Rating, Qt::DescendingOrder);
    QCOMPARE(ratings().join(u'|'), QStringLiteral("c.png ★★★★★|a.png ★★|b.png "));
    rate(2, 4); // the order follows
    QCOMPARE(ratings().join(u'|'), QStringLiteral("c.png ★★★★★|b.png ★★★★|a.png ★★"));
}

void Ratings::worksOnTheBestOnly()
{
    begin();
    rate(0, 2);
    rate(2, 5);
    m_driver->pictures().setLeastRating(2);
    QCOMPARE(ratings().join(u'|'), QStringLiteral("a.png ★★|c.png ★★★★★"));
    QVERIFY(m_driver->control<QWidget>("filterBar")->isVisible());
    QVERIFY(!m_driver->control<QWidget>("hiddenBar")->isVisible());
    QCOMPARE(m_driver->text("filterNote"), QStringLiteral("Only pictures with 2 stars or more are processed: 2"));
    auto *start = m_driver->control<QAbstractButton>("startButton");
    QVERIFY(m_driver->waitFor([start] { return start->text() == QStringLiteral("Resize 2 Pictures"); }));
    rate(0, 1); // it is below now
    QCOMPARE(ratings().join(u'|'), QStringLiteral("c.png ★★★★★"));
    m_driver->click("startButton");
    const QString summary = m_driver->waitForSummary();
    QVERIFY2(summary.startsWith(QStringLiteral("1 picture done")), qPrintable(summary));
    QTest::keyClick(&m_driver->pictures(), Qt::Key_Escape);
    QVERIFY(m_driver->waitFor([this] { return m_driver->pictures().model()->rowCount() == 3; }));
    QVERIFY(!m_driver->control<QWidget>("filterBar")->isVisible());
}

void Ratings::sortsIntoFoldersByStars()
{
    begin("sort");
    auto *pattern = m_driver->control<QLineEdit>("sortPattern");
    pattern->setFocus();
    pattern->selectAll();
    QTest::keyClicks(pattern, QStringLiteral("Stars {rating}"));
    rate(0, 4);
    rate(1, 4);
    const auto isPlanned = [this] {
        return m_driver->cell(0, PictureModel::NewName).contains(QStringLiteral("Stars 4")) &&
               m_driver->cell(2, PictureModel::NewName).contains(QStringLiteral("Stars Not rated"));
    };
    QVERIFY2(m_driver->waitFor(isPlanned), qPrintable(m_driver->cell(0, PictureModel::NewName)));
    auto *start = m_driver->control<QAbstractButton>("startButton");
    QVERIFY(m_driver->waitFor([start] { return start->isEnabled(); }));
    start->click();
    QVERIFY(!m_driver->waitForSummary().isEmpty());
    for (const char *place : {"/Stars 4/a.png", "/Stars 4/b.png", "/Stars Not rated/c.png"})
        QVERIFY2(QFile::exists(m_driver->inputFolder() + QString::fromLatin1(place)), place);
    QCOMPARE(ratings().first(), QStringLiteral("a.png ★★★★")); // it goes where the file goes
}

void Ratings::keysBelongToTheFieldAndToFolders()
{
    begin();
    auto *field = m_driver->control<QLineEdit>("folderName");
    field->setFocus();
    field->selectAll();
    QTest::keyClick(field, Qt::Key_3);
    QCOMPARE(ratings().join(u'|'), QStringLiteral("a.png |b.png |c.png "));
    QVERIFY(m_driver->pictures().keysRate());
    m_driver->show("hand");
    QVERIFY(!m_driver->pictures().keysRate());
}

void Ratings::starsAreWrittenIntoFilesAndTakenOutAgain()
{
    begin();
    const QByteArray original = pictures::bytesOf(path("b.png"));
    QVERIFY(!m_driver->control<QAction>("writeRatingsAction")->isEnabled());
    rate(1, 3);
    rate(2, 5);
    writeRatings("Write");
    const auto isSaid = [this](const char *text) {
        return m_driver->waitFor([this, text] { return m_driver->text("statusText") == QString::fromUtf8(text); });
    };
    QVERIFY2(isSaid("2 ratings written"), qPrintable(m_driver->text("statusText")));
    QCOMPARE(writtenIn("a.png"), QString());
    QCOMPARE(writtenIn("b.png"), QStringLiteral("3"));
    QCOMPARE(writtenIn("c.png"), QStringLiteral("5"));
    QCOMPARE(ratings().join(u'|'), QStringLiteral("a.png |b.png ★★★|c.png ★★★★★"));
    // Stars that are taken away later go out of the file too.
    rate(2, 0);
    writeRatings("Write");
    QVERIFY2(isSaid("1 rating written"), qPrintable(m_driver->text("statusText")));
    QCOMPARE(writtenIn("c.png"), QString());
    auto *undo = m_driver->control<QAction>("undoAction");
    QCOMPARE(undo->text(), QStringLiteral("Undo Writing 1 Rating"));
    undo->trigger();
    QVERIFY(m_driver->waitFor([this] { return writtenIn("c.png") == QStringLiteral("5"); }));
    QVERIFY(m_driver->waitFor([undo] { return undo->text() == QStringLiteral("Undo Writing 2 Ratings"); }));
    QVERIFY2(isSaid("1 picture reverted"), qPrintable(m_driver->text("statusText")));
    undo->trigger();
    QVERIFY2(isSaid("2 pictures reverted"), qPrintable(m_driver->text("statusText")));
    QCOMPARE(pictures::bytesOf(path("b.png")), original);
    m_driver->show("log");
    QVERIFY(m_driver->waitFor([this] { return m_driver->text("logCount") == QStringLiteral("6 entries"); }));
}

void Ratings::noFileIsWrittenUnasked()
{
    begin();
    const QByteArray original = pictures::bytesOf(path("a.png"));
    rate(0, 4);
    writeRatings("Cancel");
    QTest::qWait(300);
    QCOMPARE(pictures::bytesOf(path("a.png")), original);
    QVERIFY(!QFile::exists(path("a.png.xmp")));
}

QUORLIN_GUI_TEST(Ratings)

#include "tst_ratings.moc"
