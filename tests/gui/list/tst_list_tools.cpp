#include "tests/gui/support/window_driver.h"
#include "tests/support/dated_pictures.h"
#include "tests/support/raised_text.h"
#include "tests/support/test_program.h"

#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QDrag>
#include <QFile>
#include <QHeaderView>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

using window::PictureModel;

/** What can be done with the list as a whole: its files elsewhere, its order, its table, its size on the disk, and what was used last. */
class TestListTools : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_driver = WindowDriver::showing("resize"); }
    void cleanup() { m_driver.reset(); }
    void rowsGiveTheirFilesOrTheirResults();
    void rowsAreDraggedOutAsCopies();
    void rowsAreMovedByHand();
    void theListIsExported();
    void aCounterThatIsTooNarrowIsWidened();
    void allResultsAreEstimated();
    void recentDestinationsAreOfferedAndForgotten();
    void recentRecipesAreOffered();
    void newNamesAreOneForEachPicture();

private:
    QString path(const QString &name) const { return m_driver->inputFolder() + u'/' + name; }
    void pictures(const QStringList &names);
    void write(const QString &name, const QByteArray &bytes);
    QStringList shownNames();
    QStringList entriesOf(const char *menu);

    std::unique_ptr<WindowDriver> m_driver;
};

void TestListTools::write(const QString &name, const QByteArray &bytes)
{
    QVERIFY(QDir().mkpath(QFileInfo(path(name)).path()));
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

void TestListTools::pictures(const QStringList &names)
{
    for (const QString &name : names)
        write(name, pictures::datedJpeg(QStringLiteral("2026:08:14 10:20:30"), QStringLiteral("Camera A")));
    m_driver->drop({m_driver->inputFolder()});
    QCOMPARE(m_driver->pictures().count(), int(names.size()));
}

QStringList TestListTools::shownNames()
{
    QStringList names;
    for (int row = 0; row < m_driver->pictures().model()->rowCount(); ++row)
        names.append(m_driver->cell(row, PictureModel::Name));
    return names;
}

QStringList TestListTools::entriesOf(const char *menu)
{
    QStringList texts;
    const QList<QAction *> entries = m_driver->control<QMenu>(menu)->actions();
    for (const QAction *entry : entries)
        if (!entry->isSeparator())
            texts.append(entry->text());
    return texts;
}

void TestListTools::rowsGiveTheirFilesOrTheirResults()
{
    pictures({QStringLiteral("a.jpg"), QStringLiteral("b.jpg")});
    window::PictureTable &list = m_driver->pictures();
    QVERIFY(list.dragEnabled() && list.model()->flags(list.model()->index(0, 0)).testFlag(Qt::ItemIsDragEnabled));
    list.selectAll();
    QCOMPARE(list.chosenFiles(), QStringList({path(QStringLiteral("a.jpg")), path(QStringLiteral("b.jpg"))}));
    QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
    const QMimeData *data = QApplication::clipboard()->mimeData();
    QCOMPARE(data->urls(), QList<QUrl>({QUrl::fromLocalFile(path(QStringLiteral("a.jpg"))),
                                        QUrl::fromLocalFile(path(QStringLiteral("b.jpg")))}));
    QCOMPARE(m_driver->text("statusText"), QStringLiteral("2 files copied"));
    QVERIFY(m_driver->waitFor([this] { return m_driver->control<QAbstractButton>("startButton")->isEnabled(); }));
    m_driver->click("startButton");
    QVERIFY(!m_driver->waitForSummary().isEmpty());
    list.selectRow(1);
    m_driver->trigger("copyFilesAction");
    QCOMPARE(QApplication::clipboard()->mimeData()->urls(),
             QList<QUrl>{QUrl::fromLocalFile(path(QStringLiteral("Resized/b.jpg")))});
    m_driver->choose("metadata", QStringLiteral("none")); // what was made is the past now
    QVERIFY(m_driver->waitFor([&] { return list.chosenFiles() == QStringList(path(QStringLiteral("b.jpg"))); }));
}

// What is dragged is seen while it is on its way; Esc ends it.
void TestListTools::rowsAreDraggedOutAsCopies()
{
    pictures({QStringLiteral("a.jpg"), QStringLiteral("b.jpg")});
    window::PictureTable &list = m_driver->pictures();
    list.selectAll();
    Qt::DropActions offered;
    QList<QUrl> urls;
    QTimer look;
    connect(&look, &QTimer::timeout, this, [&] {
        const auto *drag = list.findChild<QDrag *>();
        if (!drag)
            return;
        offered = drag->supportedActions();
        urls = drag->mimeData()->urls();
        look.stop();
        QTest::keyClick(&list, Qt::Key_Escape);
    });
    look.start(10);
    const QPoint from = list.visualRect(list.model()->index(0, PictureModel::Name)).center();
    QTest::mousePress(list.viewport(), Qt::LeftButton, {}, from);
    for (int step = 1; step < 4; ++step)
        QTest::mouseMove(list.viewport(), from + QPoint(0, 20 * step));
    QVERIFY(m_driver->waitFor([&] { return !urls.isEmpty(); }));
    QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, from);
    QCOMPARE(offered, Qt::DropActions(Qt::CopyAction));
    QCOMPARE(urls, QList<QUrl>({QUrl::fromLocalFile(path(QStringLiteral("a.jpg"))),
                                QUrl::fromLocalFile(path(QStringLiteral("b.jpg")))}));
    QCOMPARE(list.count(), 2);
    QVERIFY(QFile::exists(path(QStringLiteral("a.jpg"))));
}

void TestListTools::rowsAreMovedByHand()
{
    const QStringList names = {QStringLiteral("a.jpg"), QStringLiteral("b.jpg"), QStringLiteral("c.jpg")};
    const QStringList moved = {QStringLiteral("b.jpg"), QStringLiteral("c.jpg"), QStringLiteral("a.jpg")};
    m_driver->show("rename");
    pictures(names);
    m_driver->choose("preset", QStringLiteral("=Number suffix"));
    m_driver->pictures().selectRow(0);
    m_driver->trigger("moveUpAction"); // it is the first
    QCOMPARE(shownNames(), names);
    m_driver->trigger("moveDownAction");
    m_driver->trigger("moveDownAction");
    QCOMPARE(shownNames(), moved);
    QVERIFY(
        m_driver->waitFor([this] { return m_driver->cell(2, PictureModel::NewName) == QLatin1String("a 003.jpg"); }));
    QCOMPARE(m_driver->control<QAction>("undoAction")->text(), QStringLiteral("Undo Moving 1 Row"));
    m_driver->trigger("undoAction");
    m_driver->trigger("undoAction");
    QCOMPARE(shownNames(), names);
    QVERIFY(
        m_driver->waitFor([this] { return m_driver->cell(0, PictureModel::NewName) == QLatin1String("a 001.jpg"); }));
    m_driver->trigger("redoAction");
    m_driver->trigger("redoAction");
    QCOMPARE(shownNames(), moved);
    m_driver->trigger("clearAction");
    m_driver->trigger("undoAction");
    QCOMPARE(shownNames(), moved);
    // From a sorted order, the order shown becomes that of adding.
    m_driver->pictures().horizontalHeader()->setSortIndicator(PictureModel::Name, Qt::DescendingOrder);
    QCOMPARE(shownNames(), QStringList({names[2], names[1], names[0]}));
    m_driver->pictures().selectRow(0);
    m_driver->trigger("moveDownAction");
    QCOMPARE(shownNames(), QStringList({names[1], names[2], names[0]}));
    QVERIFY(m_driver->pictures().sorting().isEmpty());
}

void TestListTools::theListIsExported()
{
    pictures({QStringLiteral("a.jpg"), QStringLiteral("b, \"c\".jpg")});
    m_driver->pictures().selectRow(0);
    m_driver->trigger("tickAction");
    m_driver->pictures().rate(4);
    m_driver->pictures().setPropertyColumns({QStringLiteral("{TIFF}|Model")});
    QVERIFY(m_driver->waitFor([this] { return m_driver->cell(1, PictureModel::Status) == QLatin1String("Ready"); }));
    const QString target = m_driver->folder() + QStringLiteral("/List.csv");
    m_driver->answerPanels({target});
    m_driver->trigger("exportListAction");
    QVERIFY(m_driver->waitFor([&] { return QFile::exists(target); }));
    QFile file(target);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QVERIFY(content.startsWith("\xEF\xBB\xBF"));
    const QStringList lines = QString::fromUtf8(content.mid(3)).split(QStringLiteral("\r\n"));
    const QString head = QStringLiteral(
        "Ticked,Name,Folder,DateTaken,Camera,Rating,Width,Height,Bytes,Type,NewName,NewSize,Status,{TIFF}|Model");
    QCOMPARE(lines.at(0), head);
    const QString bytes = QString::number(QFileInfo(path(QStringLiteral("a.jpg"))).size());
    QCOMPARE(lines.at(1), QStringLiteral("no,a.jpg,%1,2026-08-14T10:20:30,Camera A,4,30,20,%2,JPEG,,,Left out,Camera A")
                              .arg(m_driver->inputFolder(), bytes));
    QVERIFY2(lines.at(2).startsWith(QStringLiteral("yes,\"b, \"\"c\"\".jpg\",")), qPrintable(lines.at(2)));
    QVERIFY2(lines.at(2).endsWith(QStringLiteral(",Ready,Camera A")), qPrintable(lines.at(2)));
    QCOMPARE(lines.size(), 4);
}

void TestListTools::aCounterThatIsTooNarrowIsWidened()
{
    m_driver->show("rename");
    QStringList names;
    for (int i = 0; i < 12; ++i)
        names.append(QStringLiteral("p%1.jpg").arg(i));
    pictures(names);
    m_driver->choose("preset", QStringLiteral("=Number suffix")); // {counter:001}
    QVERIFY(m_driver->waitFor(
        [this] { return m_driver->cell(11, PictureModel::NewName).endsWith(QLatin1String("012.jpg")); }));
    auto *bar = m_driver->control<QWidget>("widthBar");
    QVERIFY(!bar->isVisible());
    m_driver->click("cardTitle");
    auto *pattern = m_driver->control<QLineEdit>("firstText");
    pattern->setText(QStringLiteral("{name} {counter:95}"));
    QVERIFY(m_driver->waitFor([&] { return bar->isVisible(); }));
    QCOMPARE(m_driver->text("widthNote"), QStringLiteral("The counter needs more digits: the last number has 3."));
    QCOMPARE(m_driver->control<QAbstractButton>("widenCounter")->text(), QStringLiteral("Use 5 Digits"));
    m_driver->click("widenCounter");
    QVERIFY(m_driver->waitFor(
        [this] { return m_driver->cell(11, PictureModel::NewName) == QLatin1String("p11 00106.jpg"); }));
    QVERIFY(!bar->isVisible());
    QCOMPARE(pattern->text(), QStringLiteral("{name} {counter:00095}"));
}

/** A hundred pictures, from plain to busy: the estimate is that of all results within 15 percent. */
void TestListTools::allResultsAreEstimated()
{
    QRandomGenerator random(7);
    for (int i = 0; i < 100; ++i) {
        QImage image(160 + 2 * i, 120 + i, QImage::Format_RGB32);
        const int noise = 1 + (i * 37) % 100;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                image.setPixel(x, y, qRgb(random.bounded(noise) + x / 4, 90, random.bounded(noise)));
        QVERIFY(image.save(path(QStringLiteral("p%1.jpg").arg(i)), "jpg", 85));
    }
    m_driver->drop({m_driver->inputFolder()});
    QCOMPARE(m_driver->pictures().count(), 100);
    QVERIFY(
        m_driver->waitFor([this] { return m_driver->text("startNote").startsWith(QLatin1String("about ")); }, 60000));
    static const QRegularExpression form(QStringLiteral("^about ([0-9.]+) (KB|MB) in total$"));
    const auto match = form.match(m_driver->text("startNote"));
    QVERIFY2(match.hasMatch(), qPrintable(m_driver->text("startNote")));
    const double estimate = match.captured(1).toDouble() * (match.captured(2) == QLatin1String("MB") ? 1e6 : 1e3);
    m_driver->click("startButton");
    QVERIFY(!m_driver->waitForSummary().isEmpty());
    double made = 0;
    const QFileInfoList results = QDir(path(QStringLiteral("Resized"))).entryInfoList(QDir::Files);
    QCOMPARE(results.size(), 100);
    for (const QFileInfo &result : results)
        made += double(result.size());
    QVERIFY2(qAbs(estimate - made) <= 0.15 * made, qPrintable(QStringLiteral("%1 for %2").arg(estimate).arg(made)));
}

void TestListTools::recentDestinationsAreOfferedAndForgotten()
{
    pictures({QStringLiteral("a.jpg")});
    QVERIFY(!m_driver->control<QMenu>("destinationsMenu")->isEnabled());
    for (const char *name : {"one", "two"}) {
        const QString folder = m_driver->folder() + u'/' + QString::fromLatin1(name);
        QVERIFY(QDir().mkpath(folder));
        m_driver->answerPanels({folder});
        m_driver->choose("destination", QStringLiteral("choose"));
    }
    QCOMPARE(entriesOf("destinationsMenu").size(), 3);
    QVERIFY(entriesOf("destinationsMenu").at(1).endsWith(QLatin1String("one")));
    m_driver->control<QMenu>("destinationsMenu")->actions().at(1)->trigger();
    QVERIFY(m_driver->control<QComboBox>("destination")->currentText().endsWith(QLatin1String("one")));
    QVERIFY(QDir().rmdir(m_driver->folder() + QStringLiteral("/two")));
    m_driver->startAgain();
    m_driver->show("resize");
    QCOMPARE(entriesOf("destinationsMenu").size(), 2); // what is gone is forgotten
    m_driver->control<QMenu>("destinationsMenu")->actions().constLast()->trigger();
    QVERIFY(entriesOf("destinationsMenu").size() <= 2); // the chosen one stays
    m_driver->show("rename");
    QVERIFY(!m_driver->control<QMenu>("destinationsMenu")->isEnabled());
}

void TestListTools::recentRecipesAreOffered()
{
    QVERIFY(!m_driver->control<QMenu>("recipesMenu")->isEnabled());
    write(QStringLiteral("web.quorlin"),
          QByteArray(
              R"({"quorlin": 1, "operations": [{"do": "resize", "longest": 20}], "outputs": [{"type": "jpeg"}]})"));
    m_driver->drop({path(QStringLiteral("web.quorlin"))});
    QVERIFY2(m_driver->text("statusText").startsWith(QLatin1String("Recipe opened")),
             qPrintable(m_driver->text("statusText")));
    QCOMPARE(entriesOf("recipesMenu").size(), 2);
    QVERIFY(entriesOf("recipesMenu").constFirst().endsWith(QLatin1String("web.quorlin")));
    m_driver->control<QMenu>("recipesMenu")->actions().constLast()->trigger();
    QVERIFY(!m_driver->control<QMenu>("recipesMenu")->isEnabled());
    m_driver->drop({path(QStringLiteral("web.quorlin"))});
    QCOMPARE(entriesOf("recipesMenu").size(), 2);
    QVERIFY(QFile::remove(path(QStringLiteral("web.quorlin"))));
    m_driver->startAgain();
    QVERIFY(!m_driver->control<QMenu>("recipesMenu")->isEnabled()); // what is gone is forgotten
}

void TestListTools::newNamesAreOneForEachPicture()
{
    pictures({QStringLiteral("a.jpg"), QStringLiteral("b.jpg")});
    window::PictureTable &list = m_driver->pictures();
    const QVariantList ids = list.ids();
    QCOMPARE(ids.size(), 2);
    list.setNewNames(ids, {QStringLiteral("1.jpg"), QStringLiteral("2.jpg")});
    QCOMPARE(m_driver->cell(1, PictureModel::NewName), QStringLiteral("2.jpg"));
    QCOMPARE(raisedBy([&] { list.setNewNames(ids, {QStringLiteral("3.jpg")}); }),
             QStringLiteral("RangeError: Expected 2 names but received 1"));
    QCOMPARE(m_driver->cell(0, PictureModel::NewName), QStringLiteral("1.jpg"));
}

QUORLIN_GUI_TEST(TestListTools)

#include "tst_list_tools.moc"
