#include "app/window/controls/segmented_control.h"
#include "app/window/log/log_table.h"
#include "app/window/log/run_list.h"
#include "app/window/properties/property_tree.h"
#include "meta/mMeta.h"
#include "platform/imageio/metadata/metadata.h"
#include "tests/gui/support/when_asked.h"
#include "tests/gui/support/window_driver.h"
#include "tests/support/corpus.h"
#include "tests/support/made_tiff.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QCheckBox>
#include <QClipboard>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

/** The page that shows metadata and writes comments, and the log from which they are reverted, as a person works them. */
class TestMetadataPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_driver.reset(); }
    void showsTheChosenPictureAndItsComment();
    void findsAndCopiesProperties();
    void copiesThePlaceOnRequest();
    void writesTheCommentOfOnePicture();
    void writesIntoAllPicturesAndRevertsIt();
    void keepsWhatIsWrittenIntoMany();
    void refusesUnknownTokens();
    void saysBeforehandWhatHasNoPlaceForAComment();
    void showsPicturesOfCamerasAndPhones_data();
    void showsPicturesOfCamerasAndPhones();
    void advancesWithEachOfTheChosenFilesThatHasItsComment();
    void writesIntoTheFilesOfAFolder();
    void aCancelledPanelWritesNothing();
    void cancelStopsAfterTheCurrentPicture();
    void revertsOneRowAfterARestart();
    void revertsARunAndDoesItAgain();
    void saysWhyACommentIsNotReverted();
    void saysThatAFileCannotBeWritten();
    void leavesFilesWithSeveralPagesOutUnlessAskedFor();
    void tenThousandEditsStayFluid();

private:
    QString path(const QString &name) const { return m_pictures + u'/' + name; }
    QString path(const char *name) const { return path(QString::fromLatin1(name)); }
    QPlainTextEdit *comment() { return m_driver->control<QPlainTextEdit>("metaComment"); }
    window::PropertyTree *tree() { return m_driver->control<window::PropertyTree>("metaTree"); }
    window::LogTable *log() { return m_driver->control<window::LogTable>("logTable"); }
    window::RunList *runs() { return m_driver->control<window::RunList>("logRuns"); }
    QAbstractButton *button(const char *name) { return m_driver->control<QAbstractButton>(name); }
    bool isIdle() { return !button("metaStop")->isVisible(); }
    static QString commentOf(const QString &file) { return mMeta().hGetExifUc(file); }
    QString note() { return m_driver->text("statusText"); }

    void many() { m_driver->control<window::SegmentedControl>("metaScope")->setFocus(), key(Qt::Key_Right); }
    void key(Qt::Key code) { QTest::keyClick(m_driver->control<window::SegmentedControl>("metaScope"), code); }
    void addPictures();
    void copyEntry(int index) { button2()->menu()->actions()[index]->trigger(); }
    QPushButton *button2() { return m_driver->control<QPushButton>("metaCopy"); }
    void writeIntoChosen(const char *name, const QStringList &paths, const QString &text);
    void showEdits();
    QString cells(int column);
    QByteArray logText();

    std::unique_ptr<WindowDriver> m_driver;
    QString m_pictures;
};

void TestMetadataPage::init()
{
    m_driver = WindowDriver::started();
    m_pictures = m_driver->folder() + QStringLiteral("/pictures");
    QVERIFY(QDir().mkpath(m_pictures));
    for (const char *name : {"a.jpg", "b.jpg", "c.png", "d.bmp"})
        QVERIFY(pictures::gradient(40, 30).save(path(name)));
    QCOMPARE(mMeta().hSetExifData(path("a.jpg"), QStringLiteral("the first")), QStringLiteral("OK"));
    m_driver->show("metadata");
}

void TestMetadataPage::addPictures()
{
    m_driver->drop({path("a.jpg"), path("b.jpg"), path("c.png"), path("d.bmp")});
    QVERIFY(m_driver->waitFor([this] { return m_driver->pictures().count() == 4; }));
}

/** Chooses files or a folder, and answers that it is meant. */
void TestMetadataPage::writeIntoChosen(const char *name, const QStringList &paths, const QString &text)
{
    comment()->setPlainText(text);
    m_driver->answerPanels(paths);
    m_driver->answerNextQuestion(QStringLiteral("Write"));
    m_driver->click(name);
    QVERIFY(m_driver->waitFor([this] { return isIdle(); }));
}

void TestMetadataPage::showEdits()
{
    m_driver->click("metaLog");
    QVERIFY(m_driver->waitFor([this] { return log()->isVisible() && !log()->isReading(); }));
}

QString TestMetadataPage::cells(int column)
{
    QStringList all;
    for (int row = 0; row < log()->model()->rowCount(); ++row)
        all << log()->model()->index(row, column).data().toString();
    return all.join(u'|');
}

QByteArray TestMetadataPage::logText()
{
    return pictures::bytesOf(m_driver->folder() + QStringLiteral("/.local/share/quorlin/log.jsonl"));
}

void TestMetadataPage::showsTheChosenPictureAndItsComment()
{
    addPictures();
    QVERIFY(tree()->isVisible());
    QCOMPARE(m_driver->text("metaName"), QStringLiteral("a.jpg"));
    QCOMPARE(comment()->toPlainText(), QStringLiteral("the first"));
    QCOMPARE(tree()->words({QStringLiteral("Pixel width")}), QStringLiteral("40 pixels"));
    m_driver->trigger("nextAction");
    QCOMPARE(m_driver->text("metaName"), QStringLiteral("b.jpg"));
    QCOMPARE(comment()->toPlainText(), QString());
    QVERIFY(!button("metaApply")->isEnabled());
}

void TestMetadataPage::findsAndCopiesProperties()
{
    addPictures();
    const int all = tree()->shownCount();
    m_driver->control<QLineEdit>("metaSearch")->setText(QStringLiteral("USER comm"));
    QCOMPARE(tree()->shownCount(), 1);
    QVERIFY(m_driver->text("metaFound").startsWith(QLatin1Char('1')));
    QTreeWidgetItem *exif = tree()->findItems(QStringLiteral("Exif"), Qt::MatchExactly).value(0);
    QVERIFY(exif && exif->childCount() == 1);
    tree()->setCurrentItem(exif->child(0));
    copyEntry(0);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("the first"));
    tree()->setCurrentItem(exif);
    QTest::keyClick(tree(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("Exif\n  User comment: the first"));
    m_driver->control<QLineEdit>("metaSearch")->clear();
    QCOMPARE(tree()->shownCount(), all);
}

void TestMetadataPage::copiesThePlaceOnRequest()
{
    const QVariantMap gps = {{QStringLiteral("Latitude"), -33.5}, {QStringLiteral("Longitude"), 70.25}};
    const auto placed = platform::Metadata::fromProperties({{QStringLiteral("{GPS}"), gps}})
                            .writtenInto(pictures::bytesOf(path("b.jpg")));
    QVERIFY(placed);
    QFile file(path("b.jpg"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(*placed) == placed->size());
    file.close();
    addPictures();
    const QList<QAction *> entries = button2()->menu()->actions();
    QVERIFY(entries[0]->isEnabled() && !entries[2]->isEnabled() && !entries[3]->isEnabled());
    m_driver->trigger("nextAction");
    copyEntry(2);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("-33.500000, 70.250000"));
    copyEntry(3);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("33° 30′ 0.0″ S, 70° 15′ 0.0″ E"));
    QVERIFY(note().contains(QStringLiteral("33° 30′")));
}

void TestMetadataPage::writesTheCommentOfOnePicture()
{
    addPictures();
    comment()->setPlainText(QStringLiteral("{name} Ωμέγα 😀"));
    m_driver->click("metaApply");
    QVERIFY(m_driver->waitFor([this] { return isIdle(); }));
    // The comment of one picture is what is typed, braces and all.
    QCOMPARE(commentOf(path("a.jpg")), QStringLiteral("{name} Ωμέγα 😀"));
    QCOMPARE(comment()->toPlainText(), QStringLiteral("{name} Ωμέγα 😀"));
    QCOMPARE(tree()->words({QStringLiteral("Exif"), QStringLiteral("User comment")}), QStringLiteral("{name} Ωμέγα 😀"));
    m_driver->click("metaRevert");
    QVERIFY(m_driver->waitFor([this] { return isIdle() && commentOf(path("a.jpg")) == QLatin1String("the first"); }));
    QVERIFY(!button("metaRevert")->isEnabled());
}

void TestMetadataPage::writesIntoAllPicturesAndRevertsIt()
{
    addPictures();
    many();
    comment()->setPlainText(QStringLiteral("{name} {counter} {date:yyyy}"));
    const QString year = QString::number(QDate::currentDate().year());
    QCOMPARE(m_driver->text("metaNote"), QStringLiteral("For example a.jpg: “a 1 %1”").arg(year));
    m_driver->answerNextQuestion(QStringLiteral("Cancel"));
    m_driver->click("metaApplyAll");
    QVERIFY(m_driver->waitFor([this] { return isIdle(); }));
    QCOMPARE(commentOf(path("b.jpg")), QString());
    m_driver->answerNextQuestion(QStringLiteral("Write"));
    m_driver->click("metaApplyAll");
    QVERIFY(m_driver->waitFor([this] { return isIdle(); }));
    QCOMPARE(commentOf(path("a.jpg")), QStringLiteral("a 1 ") + year);
    QCOMPARE(commentOf(path("b.jpg")), QStringLiteral("b 2 ") + year);
    QCOMPARE(commentOf(path("c.png")), QStringLiteral("c 3 ") + year);
    QCOMPARE(commentOf(path("d.bmp")), QString()); // it has no place for one
    QVERIFY2(note().startsWith(QStringLiteral("3 comments written · 1 problem · ")), qPrintable(note()));
    m_driver->click("metaRevert");
    QVERIFY(m_driver->waitFor([this] { return isIdle() && commentOf(path("a.jpg")) == QLatin1String("the first"); }));
    QCOMPARE(commentOf(path("b.jpg")), QString());
    QCOMPARE(note(), QStringLiteral("3 comments reverted"));
}

void TestMetadataPage::keepsWhatIsWrittenIntoMany()
{
    addPictures();
    many();
    comment()->setPlainText(QStringLiteral("Lake {counter:001}"));
    key(Qt::Key_Left);
    QCOMPARE(comment()->toPlainText(), QStringLiteral("the first"));
    m_driver->window().close();
    m_driver->startAgain();
    m_driver->show("metadata");
    // Without a picture there is only this to be written.
    QCOMPARE(comment()->toPlainText(), QStringLiteral("Lake {counter:001}"));
    QCOMPARE(m_driver->text("metaNote"), QStringLiteral("For example IMG_4711.JPG: “Lake 001”"));
    addPictures();
    QCOMPARE(comment()->toPlainText(), QStringLiteral("the first"));
}

void TestMetadataPage::refusesUnknownTokens()
{
    addPictures();
    many();
    comment()->setPlainText(QStringLiteral("{nonsense}"));
    for (const char *name : {"metaApplyAll", "metaChooseFiles", "metaChooseFolder"})
        QVERIFY2(!button(name)->isEnabled(), name);
    QVERIFY(m_driver->text("metaNote").contains(QLatin1String("{nonsense}")));
}

void TestMetadataPage::saysBeforehandWhatHasNoPlaceForAComment()
{
    addPictures();
    for (int i = 0; i < 3; ++i)
        m_driver->trigger("nextAction");
    QCOMPARE(m_driver->text("metaName"), QStringLiteral("d.bmp"));
    QVERIFY(m_driver->text("metaNote").contains(QStringLiteral("cannot hold a comment")));
    QVERIFY(comment()->isReadOnly() && !button("metaApply")->isEnabled());
    many();
    QVERIFY(!comment()->isReadOnly());
    comment()->setPlainText(QStringLiteral("x"));
    QString detail;
    whenAsked([&detail](QMessageBox &box) {
        detail = box.informativeText();
        box.reject();
    });
    m_driver->click("metaApplyAll");
    QVERIFY(m_driver->waitFor([&] { return !detail.isEmpty() && isIdle(); }));
    QVERIFY2(detail.contains(QStringLiteral("1 file has a type that cannot hold a comment")), qPrintable(detail));
}

void TestMetadataPage::showsPicturesOfCamerasAndPhones_data()
{
    QTest::addColumn<QString>("picture");
    QTest::addColumn<bool>("holds");
    QTest::newRow("heic") << QStringLiteral("own/metadata/every-group.heic") << false;
    QTest::newRow("avif") << QStringLiteral("own/formats/rgb.avif") << false;
    QTest::newRow("dng") << QStringLiteral("own/formats/plain.dng") << true;
    QTest::newRow("webp") << QStringLiteral("own/formats/animated.webp") << true;
    if (!corpusIsThere())
        return;
    QTest::newRow("heic of a phone") << QStringLiteral("formats/IMG_5195.HEIC") << false;
    QTest::newRow("dng of a phone") << QStringLiteral("formats/IMG_1361.dng") << true;
    QTest::newRow("large webp") << QStringLiteral("formats/iss634.webp") << true;
}

void TestMetadataPage::showsPicturesOfCamerasAndPhones()
{
    QFETCH(QString, picture);
    QFETCH(bool, holds);
    const QString source = picturePath(picture);
    const QString copy = path(QFileInfo(picture).fileName());
    QVERIFY(QFile::copy(source, copy));
    if (picture.endsWith(QLatin1String(".dng"))) { // what the sensor saw was cut off there
        QFile file(copy);
        QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
        QVERIFY(file.resize(64 << 20));
    }
    m_driver->drop({copy});
    QVERIFY(m_driver->waitFor([this] { return m_driver->pictures().count() == 1; }));
    QCOMPARE(m_driver->text("metaName"), QFileInfo(picture).fileName());
    QVERIFY(tree()->words({QStringLiteral("Pixel width")}).endsWith(QStringLiteral(" pixels")));
    QCOMPARE(comment()->isReadOnly(), !holds);
    QCOMPARE(m_driver->text("metaNote").contains(QStringLiteral("cannot hold a comment")), !holds);
    if (!holds)
        return;
    comment()->setPlainText(QStringLiteral("written"));
    m_driver->click("metaApply");
    QVERIFY(m_driver->waitFor([this] { return isIdle(); }));
    QCOMPARE(commentOf(copy), QStringLiteral("written"));
}

void TestMetadataPage::advancesWithEachOfTheChosenFilesThatHasItsComment()
{
    QVERIFY(pictures::gradient(40, 30).save(path("e.jpg")));
    for (const char *name : {"text.jpg", "more.jpg"})
        QVERIFY(QFile(path(name)).open(QIODevice::WriteOnly));
    auto *bar = m_driver->control<QProgressBar>("metaProgress");
    QVERIFY(!bar->isVisible());
    int most = 0;
    QList<int> values;
    bool wasVisible = true;
    connect(bar, &QProgressBar::valueChanged, this, [&](int value) {
        values << value;
        most = bar->maximum();
        wasVisible = wasVisible && (value == 0 || bar->isVisible());
    });
    writeIntoChosen("metaChooseFiles",
                    {path("a.jpg"), path("text.jpg"), path("b.jpg"), path("more.jpg"), path("e.jpg")},
                    QStringLiteral("batch {counter}"));
    if (values.startsWith(-1) || values.value(0) == 0)
        values.removeFirst(); // from where it was before
    QCOMPARE(values, QList<int>({1, 2, 3, 0}));
    QCOMPARE(most, 5);
    QVERIFY(wasVisible && !bar->isVisible());
    QCOMPARE(commentOf(path("e.jpg")), QStringLiteral("batch 5"));
    QVERIFY2(note().startsWith(QStringLiteral("3 comments written · 2 problems · ")), qPrintable(note()));
}

void TestMetadataPage::writesIntoTheFilesOfAFolder()
{
    QVERIFY(QDir().mkpath(path("deep/er")));
    QVERIFY(pictures::gradient(40, 30).save(path("deep/er/f.tif")));
    writeIntoChosen("metaChooseFolder", {m_pictures}, QStringLiteral("{folder}"));
    QCOMPARE(commentOf(path("a.jpg")), QStringLiteral("pictures"));
    QCOMPARE(commentOf(path("deep/er/f.tif")), QStringLiteral("er"));
    QCOMPARE(commentOf(path("c.png")), QString()); // asked for are JPEG and TIFF files
    QCOMPARE(note(), QStringLiteral("3 comments written"));
}

void TestMetadataPage::aCancelledPanelWritesNothing()
{
    comment()->setPlainText(QStringLiteral("x"));
    m_driver->answerPanels({});
    for (const char *name : {"metaChooseFiles", "metaChooseFolder"}) {
        m_driver->click(name);
        QVERIFY(isIdle());
    }
    QCOMPARE(commentOf(path("a.jpg")), QStringLiteral("the first"));
    QCOMPARE(logText(), QByteArray());
}

void TestMetadataPage::cancelStopsAfterTheCurrentPicture()
{
    QStringList all;
    for (int i = 0; i < 300; ++i) {
        all << path(QStringLiteral("n%1.jpg").arg(i));
        QVERIFY(QFile::copy(path("b.jpg"), all.last()));
    }
    comment()->setPlainText(QStringLiteral("new"));
    m_driver->answerPanels(all);
    m_driver->answerNextQuestion(QStringLiteral("Write"));
    m_driver->click("metaChooseFiles");
    auto *bar = m_driver->control<QProgressBar>("metaProgress");
    QVERIFY(m_driver->waitFor([bar] { return bar->value() >= 3; }));
    QVERIFY(bar->value() < all.size());
    m_driver->trigger("metaCancel");
    QVERIFY(m_driver->waitFor([this] { return isIdle(); }));
    int written = 0;
    for (const QString &each : std::as_const(all))
        written += commentOf(each) == QLatin1String("new");
    QVERIFY2(written >= 3 && written < all.size(), qPrintable(QString::number(written)));
    QCOMPARE(logText().count('\n'), written);
    QVERIFY2(note().startsWith(QStringLiteral("Stopped: %1 comments written").arg(written)), qPrintable(note()));
    // What was written can still be reverted.
    m_driver->click("metaRevert");
    QVERIFY(m_driver->waitFor([this] { return isIdle(); }));
    for (const QString &each : std::as_const(all))
        QCOMPARE(commentOf(each), QString());
}

void TestMetadataPage::revertsOneRowAfterARestart()
{
    writeIntoChosen("metaChooseFiles", {path("a.jpg"), path("b.jpg")}, QStringLiteral("new %2 {name} $&"));
    m_driver->window().close();
    m_driver->startAgain();
    m_driver->show("metadata");
    QVERIFY(!button("metaRevert")->isEnabled());
    showEdits();
    QCOMPARE(cells(window::LogModel::File), QStringLiteral("b.jpg|a.jpg"));
    QCOMPARE(cells(window::LogModel::Before), QStringLiteral("|the first"));
    QCOMPARE(cells(window::LogModel::After), QStringLiteral("new %2 b $&|new %2 a $&"));
    QVERIFY(!log()->isColumnHidden(window::LogModel::Before) && log()->isColumnHidden(window::LogModel::Result));
    log()->selectRow(1);
    QCOMPARE(m_driver->text("logRunTitle"), QStringLiteral("1 comment selected"));
    QCOMPARE(m_driver->text("logRunNote"), QStringLiteral("“the first” became “new %2 a $&”"));
    m_driver->click("logRevert");
    QVERIFY(m_driver->waitFor([this] { return log()->totalCount() == 3; }));
    QCOMPARE(commentOf(path("a.jpg")), QStringLiteral("the first"));
    QCOMPARE(commentOf(path("b.jpg")), QStringLiteral("new %2 b $&"));
    QCOMPARE(note(), QStringLiteral("1 comment reverted"));
    // A revert is itself an edit, and listed as what it is.
    QVERIFY(cells(window::LogModel::After).startsWith(QStringLiteral("the first|")));
    const QModelIndex newest = runs()->model()->index(1, 0);
    QCOMPARE(newest.data().toString(), QStringLiteral("Undo of Metadata"));
    QVERIFY(runs()->model()->index(2, 0).data().toString() == QLatin1String("Metadata"));
    runs()->setCurrentIndex(runs()->model()->index(2, 0));
    QCOMPARE(m_driver->text("logRunNote"), QStringLiteral("1 comment can be reverted. 1 has already been reverted."));
}

void TestMetadataPage::revertsARunAndDoesItAgain()
{
    addPictures();
    many();
    writeIntoChosen("metaChooseFiles", {path("a.jpg"), path("b.jpg")}, QStringLiteral("new"));
    showEdits();
    runs()->setCurrentIndex(runs()->model()->index(1, 0));
    m_driver->control<QLineEdit>("logSearch")->setText(QStringLiteral("a.jpg")); // the run is more than what is found
    m_driver->click("logUndo");
    QVERIFY(m_driver->waitFor([this] { return log()->totalCount() == 4; }));
    QCOMPARE(commentOf(path("a.jpg")), QStringLiteral("the first"));
    QCOMPARE(commentOf(path("b.jpg")), QString());
    QCOMPARE(m_driver->text("logRunNote"), QStringLiteral("All its comments have already been reverted."));
    QVERIFY(!button("logUndo")->isEnabled());
    runs()->setCurrentIndex(runs()->model()->index(1, 0));
    QVERIFY2(m_driver->text("logRunTitle").startsWith(QStringLiteral("Undo of Metadata (run of ")),
             qPrintable(m_driver->text("logRunTitle")));
    m_driver->click("logUndo");
    QVERIFY(m_driver->waitFor([this] { return log()->totalCount() == 6; }));
    QCOMPARE(commentOf(path("b.jpg")), QStringLiteral("new"));
    QCOMPARE(runs()->model()->index(1, 0).data().toString(), QStringLiteral("Redo of Metadata"));
    // What was done again can be reverted again.
    runs()->setCurrentIndex(runs()->model()->index(3, 0));
    QCOMPARE(m_driver->text("logRunNote"), QStringLiteral("2 comments can be reverted."));
    m_driver->show("metadata");
    QCOMPARE(m_driver->text("metaName"), QStringLiteral("a.jpg"));
    key(Qt::Key_Left);
    QCOMPARE(comment()->toPlainText(), QStringLiteral("new"));
}

void TestMetadataPage::saysWhyACommentIsNotReverted()
{
    QVERIFY(pictures::gradient(40, 30).save(path("e.jpg")));
    writeIntoChosen("metaChooseFiles", {path("a.jpg"), path("b.jpg"), path("e.jpg")}, QStringLiteral("new"));
    QCOMPARE(mMeta().hSetExifData(path("a.jpg"), QStringLiteral("somebody else's")), QStringLiteral("OK"));
    const QByteArray changed = pictures::bytesOf(path("a.jpg"));
    QVERIFY(QFile::remove(path("b.jpg")));
    showEdits();
    runs()->setCurrentIndex(runs()->model()->index(1, 0));
    m_driver->click("logUndo");
    QVERIFY(m_driver->waitFor([this] { return log()->totalCount() == 6; }));
    QVERIFY2(note().startsWith(QStringLiteral("1 comment reverted · 2 problems · ")), qPrintable(note()));
    QCOMPARE(pictures::bytesOf(path("a.jpg")), changed);
    QVERIFY(!QFile::exists(path("b.jpg")));
    runs()->setCurrentIndex(runs()->model()->index(1, 0));
    const QString status = cells(window::LogModel::Status);
    QVERIFY2(
        status.contains(QStringLiteral("Skipped: The comment has been changed since and is kept: “somebody else's”")),
        qPrintable(status));
    QVERIFY2(status.contains(QStringLiteral("Failed: The file no longer exists.")), qPrintable(status));
    // And once more: the one that has its old comment is left alone.
    runs()->chooseAll();
    m_driver->control<QLineEdit>("logSearch")->setText(QStringLiteral("e.jpg new"));
    log()->selectRow(log()->model()->rowCount() - 1);
    m_driver->click("logRevert");
    QVERIFY(m_driver->waitFor([this] { return log()->totalCount() == 7; }));
    QVERIFY2(note().contains(QStringLiteral("It already has its old comment.")), qPrintable(note()));
}

void TestMetadataPage::leavesFilesWithSeveralPagesOutUnlessAskedFor()
{
    const QByteArray pages = pictures::madeTiff({3});
    QFile file(path("pages.tif"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(pages) == pages.size());
    file.close();
    QString detail;
    bool isChecked = true;
    const auto answer = [&](QMessageBox &box, bool check) {
        detail = box.informativeText();
        isChecked = box.checkBox()->isChecked();
        box.checkBox()->setChecked(check);
        for (QAbstractButton *each : box.buttons())
            if (each->text() == QStringLiteral("Write"))
                return each->click();
    };
    const auto writeIntoBoth = [&](bool check) {
        comment()->setPlainText(QStringLiteral("new"));
        m_driver->answerPanels({path("a.jpg"), path("pages.tif")});
        whenAsked([&answer, check](QMessageBox &box) { answer(box, check); });
        m_driver->click("metaChooseFiles");
        return m_driver->waitFor([this] { return isIdle(); });
    };
    QVERIFY(writeIntoBoth(false));
    QVERIFY2(detail.contains(QStringLiteral("2 more pages: pages.tif (2)")), qPrintable(detail));
    QVERIFY(!isChecked);
    QCOMPARE(pictures::bytesOf(path("pages.tif")), pages);
    QCOMPARE(commentOf(path("a.jpg")), QStringLiteral("new"));
    QVERIFY2(note().contains(QStringLiteral("It has 2 more pages")), qPrintable(note()));
    QVERIFY(writeIntoBoth(true));
    QCOMPARE(commentOf(path("pages.tif")), QStringLiteral("new"));
    QCOMPARE(mMeta().hGetExifUc(path("pages.tif")), QStringLiteral("new"));
    showEdits();
    QCOMPARE(log()->totalCount(), 4);
    // What cannot be brought back as a whole is a run beside the others.
    QCOMPARE(logText().count("keep only the first page"), 1);
    QVERIFY(logText().contains("2 more pages were removed. This cannot be undone."));
}

void TestMetadataPage::saysThatAFileCannotBeWritten()
{
    writeIntoChosen("metaChooseFiles", {path("a.jpg")}, QStringLiteral("new"));
    showEdits();
    runs()->setCurrentIndex(runs()->model()->index(1, 0));
    const QString data = m_driver->folder() + QStringLiteral("/.local/share/quorlin");
    QVERIFY(::chmod(QFile::encodeName(m_driver->folder()).constData(), 0755) == 0);
    QVERIFY(::chmod(QFile::encodeName(data).constData(), 0777) == 0);
    QVERIFY(::chmod(QFile::encodeName(data + QStringLiteral("/log.jsonl")).constData(), 0666) == 0);
    QVERIFY(::chmod(QFile::encodeName(path("a.jpg")).constData(), 0444) == 0);
    {
        const Nobody nobody;
        QVERIFY(nobody.ready());
        m_driver->click("logUndo");
        QVERIFY(m_driver->waitFor([this] { return log()->totalCount() == 2; }));
    }
    QVERIFY2(note().contains(QStringLiteral("write-protected")), qPrintable(note()));
    runs()->setCurrentIndex(runs()->model()->index(1, 0));
    QVERIFY(cells(window::LogModel::Status).contains(QStringLiteral("write-protected")));
    QCOMPARE(commentOf(path("a.jpg")), QStringLiteral("new"));
}

// The duration is printed but not limited: the machines that run this are shared.
void TestMetadataPage::tenThousandEditsStayFluid()
{
    constexpr int count = 10000;
    QByteArray text;
    for (int i = 0; i < count; ++i) {
        const QString name = QStringLiteral("/p/IMG_%1.jpg").arg(i);
        text += QJsonDocument(QJsonObject{{QStringLiteral("date"), QStringLiteral("2026-11-21T10:00:00.000Z")},
                                          {QStringLiteral("process"), QStringLiteral("Metadata")},
                                          {QStringLiteral("action"), QStringLiteral("Write comment")},
                                          {QStringLiteral("status"), QStringLiteral("OK")},
                                          {QStringLiteral("inputPath"), name},
                                          {QStringLiteral("outputPath"), name},
                                          {QStringLiteral("before"), QStringLiteral("old %1").arg(i)},
                                          {QStringLiteral("after"), QStringLiteral("new comment %1").arg(i)},
                                          {QStringLiteral("run"), QStringLiteral("2026-11-21T10:00:00.000Z-1")}})
                    .toJson(QJsonDocument::Compact) +
                '\n';
    }
    QDir().mkpath(m_driver->folder() + QStringLiteral("/.local/share/quorlin"));
    QFile file(m_driver->folder() + QStringLiteral("/.local/share/quorlin/log.jsonl"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    file.close();
    QElapsedTimer clock;
    clock.start();
    m_driver->click("metaLog");
    const qint64 first = clock.restart();
    QVERIFY(log()->model()->rowCount() > 0);
    qint64 longest = 0;
    while (log()->isReading()) {
        clock.restart();
        QCoreApplication::processEvents();
        longest = qMax(longest, clock.elapsed());
    }
    QCOMPARE(log()->model()->rowCount(), count);
    clock.restart();
    log()->selectAll();
    const qint64 selected = clock.restart();
    QCOMPARE(m_driver->control<QPushButton>("logRevert")->text(), QStringLiteral("Revert 10,000 Comments"));
    m_driver->click("logRevert"); // none of the files is there: what is left is the list's own work
    qint64 step = 0;
    while (!button("logStop")->isHidden()) {
        QElapsedTimer one;
        one.start();
        QCoreApplication::processEvents();
        step = qMax(step, one.elapsed());
    }
    const qint64 reverted = clock.elapsed();
    QVERIFY(m_driver->waitFor([this] { return !log()->isReading() && log()->totalCount() == 2 * count; }));
    QVERIFY2(note().startsWith(QStringLiteral("0 comments reverted · 10,000 problems")), qPrintable(note()));
    qInfo("%d edits: first rows after %lld ms, longest slice while reading %lld ms; all chosen in %lld ms; as many "
          "reverts in %lld ms, longest slice %lld ms",
          count, qlonglong(first), qlonglong(longest), qlonglong(selected), qlonglong(reverted), qlonglong(step));
}

QUORLIN_GUI_TEST(TestMetadataPage)
#include "tst_metadata_page.moc"
