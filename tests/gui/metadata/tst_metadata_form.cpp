#include "app/window/controls/segmented_control.h"
#include "app/window/log/log_table.h"
#include "app/window/log/run_list.h"
#include "meta/metadata_file.h"
#include "tests/gui/support/when_asked.h"
#include "tests/gui/support/window_driver.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

using window::PictureModel;

/** The form of metadata fields: planned, written by workers, shown in the log, reverted and forgotten, as a person works it. */
class MetadataForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_driver.reset(); }
    void writesIntoAllAndRevertsByteForByte();
    void leavesWhatIsEmptyAndClearsOnRequest();
    void saysWhatSeveralPicturesHave();
    void showsAllThreeValuesBeforeTheyAgree();
    void writesIntoTheSelectedOnly();
    void changesKeywordsAndDates();
    void removesPrivateData();
    void dryRunWritesNothing();
    void refusesWhatMakesNoSense();
    void revertsFromTheLogAfterARestart();
    void forgetsOldValuesForGood();
    void keepsAFileThatWasChangedSince();
    void templatesKeepEveryCharacter();
    void offersKeywordsOfTheList();
    void bothFacesShareTheirEntry();
    void manyAreWrittenAndReverted();
    void picturesOfOneSidecarFollowOneAnother();
    void whatIsWrittenWhenARunStopsIsKept();

private:
    QString path(const char *name) const { return m_pictures + u'/' + QString::fromLatin1(name); }
    QLineEdit *line(const char *name) { return m_driver->control<QLineEdit>(name); }
    QPlainTextEdit *text(const char *name) { return m_driver->control<QPlainTextEdit>(name); }
    QAbstractButton *button(const char *name) { return m_driver->control<QAbstractButton>(name); }
    QString change(int row) { return m_driver->cell(row, PictureModel::NewName); }
    QString status(int row) { return m_driver->cell(row, PictureModel::Status); }
    bool planned(int row, const QString &part)
    {
        return m_driver->waitFor([&] { return change(row).contains(part); });
    }
    bool isReady()
    {
        return m_driver->waitFor([&] { return button("startButton")->isEnabled(); });
    }
    QStringList value(const char *file, const char *field) { return said(file, field, "value"); }
    QStringList said(const char *file, const char *field, const char *where);
    void addMany(int count);
    void openGroup(const char *head)
    {
        if (!button(head)->isChecked())
            m_driver->click(head);
    }
    void chooseListEntry(int index)
    {
        m_driver->control<QPushButton>("mfKeywordList")->menu()->actions().at(index)->trigger();
    }
    QString run();
    void set(const char *file, const char *field, const QStringList &texts);
    QStringList keptFiles() { return QDir(m_driver->folder() + kept).entryList(QDir::Files); }

    static inline const QString kept = QStringLiteral("/.local/share/quorlin/metadata-values");
    std::unique_ptr<WindowDriver> m_driver;
    QString m_pictures;
    std::unique_ptr<QTemporaryDir> m_more;
};

void MetadataForm::init()
{
    m_driver = WindowDriver::started();
    m_pictures = m_driver->inputFolder();
    for (const char *name : {"a.jpg", "b.tif", "c.png", "d.bmp"})
        QVERIFY(pictures::gradient(40, 30).save(path(name)));
    m_driver->show("metadata");
    m_driver->drop({m_pictures});
    QVERIFY(m_driver->waitFor([this] { return m_driver->pictures().count() == 4; }));
    m_driver->click("metaFields");
    QVERIFY(line("mfTitle")->isVisible());
}

QStringList MetadataForm::said(const char *file, const char *field, const char *where)
{
    const auto read = meta::readFields(path(file));
    if (!read)
        return {read.error().message};
    return read->value(QStringLiteral("fields"))
        .toMap()
        .value(QString::fromLatin1(field))
        .toMap()
        .value(QString::fromLatin1(where))
        .toStringList();
}

void MetadataForm::set(const char *file, const char *field, const QStringList &texts)
{
    const auto work =
        meta::workFrom({{QStringLiteral("fields"),
                         QVariantMap{{QString::fromLatin1(field), QVariantMap{{QStringLiteral("set"), texts}}}}}});
    QVERIFY(work);
    QVERIFY(meta::writeFields(path(file), *work));
}

/** Presses the button, says that it is meant, and answers what came of it. */
QString MetadataForm::run()
{
    if (!isReady())
        return QStringLiteral("not ready");
    WindowDriver::answerNextQuestion(QStringLiteral("Write"));
    m_driver->click("startButton");
    return m_driver->waitForSummary();
}

void MetadataForm::writesIntoAllAndRevertsByteForByte()
{
    QList<QByteArray> before;
    for (const char *name : {"a.jpg", "b.tif", "c.png", "d.bmp"})
        before.append(pictures::bytesOf(path(name)));
    line("mfTitle")->setText(QStringLiteral("Möwe {name}"));
    openGroup("mfRightsHead");
    line("mfCopyright")->setText(QStringLiteral("© Ana"));
    QVERIFY(planned(0, QStringLiteral("Title: “Möwe a” · Copyright: “© Ana”")));
    QVERIFY(planned(3, QStringLiteral("Möwe d")));
    QVERIFY(status(3).contains(QStringLiteral("in a sidecar file")));
    QCOMPARE(button("startButton")->text(), QStringLiteral("Write Metadata into 4 Pictures"));
    QVERIFY2(run().startsWith(QStringLiteral("4 pictures changed")), qPrintable(m_driver->text("statusText")));
    for (const char *name : {"a.jpg", "b.tif", "c.png", "d.bmp"}) {
        QCOMPARE(value(name, "title"), QStringList{QStringLiteral("Möwe %1").arg(QChar::fromLatin1(name[0]))});
        QCOMPARE(value(name, "copyright"), QStringList{QStringLiteral("© Ana")});
    }
    QVERIFY(said("a.jpg", "title", "iptc") == said("a.jpg", "title", "xmp"));
    QVERIFY(QFile::exists(path("d.bmp.xmp")));
    QCOMPARE(pictures::bytesOf(path("d.bmp")), before.at(3));
    QCOMPARE(keptFiles().size(), 1);
    m_driver->click("undoButton");
    QVERIFY(m_driver->waitFor(
        [this] { return m_driver->text("statusText").startsWith(QStringLiteral("4 pictures reverted")); }));
    int at = 0;
    for (const char *name : {"a.jpg", "b.tif", "c.png", "d.bmp"})
        QCOMPARE(pictures::bytesOf(path(name)), before.at(at++));
    QVERIFY(!QFile::exists(path("d.bmp.xmp")));
    // What was typed is there still, and can be written again.
    QVERIFY(planned(0, QStringLiteral("Title: “Möwe a”")));
    QVERIFY(!button("undoButton")->isVisible());
}

void MetadataForm::leavesWhatIsEmptyAndClearsOnRequest()
{
    set("a.jpg", "headline", {QStringLiteral("Old headline")});
    set("a.jpg", "title", {QStringLiteral("Old title")});
    m_driver->click("mfTitleClear");
    QCOMPARE(line("mfTitle")->placeholderText(), QStringLiteral("(cleared)"));
    QVERIFY(line("mfTitle")->isReadOnly());
    text("mfCaption")->setPlainText(QStringLiteral("One line\nand another"));
    QVERIFY(planned(0, QStringLiteral("Title: cleared, was “Old title”")));
    QVERIFY(run().startsWith(QStringLiteral("4 pictures changed")));
    QCOMPARE(value("a.jpg", "title"), QStringList());
    QCOMPARE(value("a.jpg", "headline"), QStringList{QStringLiteral("Old headline")});
    QCOMPARE(value("a.jpg", "caption"), QStringList{QStringLiteral("One line\nand another")});
    m_driver->click("mfTitleClear");
    QVERIFY(!line("mfTitle")->isReadOnly());
}

void MetadataForm::saysWhatSeveralPicturesHave()
{
    set("a.jpg", "city", {QStringLiteral("Lisbon")});
    set("b.tif", "city", {QStringLiteral("Porto")});
    for (const char *name : {"a.jpg", "b.tif", "c.png", "d.bmp"})
        set(name, "country", {QStringLiteral("Portugal")});
    openGroup("mfPlaceHead");
    line("mfState")->setText(QStringLiteral("x"));
    line("mfState")->clear();
    QVERIFY(m_driver->waitFor([this] { return line("mfCountry")->placeholderText() == QStringLiteral("Portugal"); }));
    QCOMPARE(line("mfCity")->placeholderText(), QStringLiteral("(several values)"));
    QCOMPARE(line("mfState")->placeholderText(), QString());
    QCOMPARE(change(0), QStringLiteral("–"));
    QVERIFY(!button("startButton")->isEnabled());
}

void MetadataForm::showsAllThreeValuesBeforeTheyAgree()
{
    // A program that knows XMP only wrote another caption.
    set("a.jpg", "caption", {QStringLiteral("Old")});
    QByteArray bytes = pictures::bytesOf(path("a.jpg"));
    const qsizetype inXmp = bytes.indexOf("Old", bytes.indexOf("dc:description"));
    QVERIFY(inXmp > 0);
    bytes.replace(inXmp, 3, "New");
    QFile file(path("a.jpg"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    m_driver->pictures().selectId(m_driver->pictures().ids().first().toInt());
    openGroup("mfDescriptionHead");
    line("mfHeadline")->setText(QStringLiteral("Harbour"));
    const QString all = QStringLiteral("Caption: EXIF “Old”, IPTC “Old”, XMP “New”");
    QVERIFY(m_driver->waitFor([&] { return m_driver->text("mfDisputed").contains(all); }));
    QVERIFY(status(0).contains(QStringLiteral("EXIF, IPTC and XMP disagree")));
    QVERIFY(isReady());
    QString asked;
    whenAsked([&asked](QMessageBox &box) { asked = box.informativeText() + box.text(), box.reject(); });
    m_driver->click("startButton");
    QVERIFY(m_driver->waitForSummary().startsWith(QStringLiteral("Cancelled")));
    QVERIFY2(asked.contains(all), qPrintable(asked));
    QCOMPARE(pictures::bytesOf(path("a.jpg")), bytes);
}

void MetadataForm::writesIntoTheSelectedOnly()
{
    auto &list = m_driver->pictures();
    list.selectId(list.ids().at(1).toInt());
    Q_EMIT m_driver->control<window::SegmentedControl>("mfScope")->chosen(1);
    line("mfTitle")->setText(QStringLiteral("Only this"));
    QVERIFY(planned(1, QStringLiteral("Only this")));
    QVERIFY(m_driver->waitFor([this] { return status(0) == QStringLiteral("Not selected"); }));
    list.selectId(list.ids().at(2).toInt());
    QVERIFY(planned(2, QStringLiteral("Only this")));
    QVERIFY(m_driver->waitFor([this] { return status(1) == QStringLiteral("Not selected"); }));
    QVERIFY(run().startsWith(QStringLiteral("1 picture changed")));
    QCOMPARE(value("c.png", "title"), QStringList{QStringLiteral("Only this")});
    QCOMPARE(value("b.tif", "title"), QStringList());
}

void MetadataForm::changesKeywordsAndDates()
{
    set("a.jpg", "keywords", {QStringLiteral("sea"), QStringLiteral("gull")});
    set("a.jpg", "dateTaken", {QStringLiteral("2026-08-14T10:20:30")});
    line("mfKeywords")->setText(QStringLiteral("Lisbon, o'clock; a|b"));
    line("mfRemovedKeywords")->setText(QStringLiteral("gull"));
    openGroup("mfDateHead");
    line("mfShift")->setText(QStringLiteral("+1:30"));
    line("mfZone")->setText(QStringLiteral("+02:00"));
    m_driver->choose("mfRating", QStringLiteral("4"));
    m_driver->choose("mfLabel", QStringLiteral("Green"));
    QVERIFY(planned(0, QStringLiteral("+Lisbon, +o'clock, +a|b, −gull")));
    QVERIFY(run().startsWith(QStringLiteral("4 pictures changed")));
    QCOMPARE(value("a.jpg", "keywords"), (QStringList{QStringLiteral("sea"), QStringLiteral("Lisbon"),
                                                      QStringLiteral("o'clock"), QStringLiteral("a|b")}));
    QCOMPARE(value("a.jpg", "dateTaken"), QStringList{QStringLiteral("2026-08-14T11:50:30+02:00")});
    QCOMPARE(value("a.jpg", "rating"), QStringList{QStringLiteral("4")});
    QCOMPARE(value("d.bmp", "label"), QStringList{QStringLiteral("Green")});
    Q_EMIT m_driver->control<window::SegmentedControl>("mfKeywordsMode")->chosen(1);
    line("mfRemovedKeywords")->clear();
    line("mfKeywords")->setText(QStringLiteral("one"));
    line("mfShift")->clear();
    line("mfZone")->clear();
    QVERIFY(planned(0, QStringLiteral("+one, −sea, −Lisbon")));
    QVERIFY(run().startsWith(QStringLiteral("4 pictures changed")));
    QCOMPARE(value("a.jpg", "keywords"), QStringList{QStringLiteral("one")});
}

void MetadataForm::removesPrivateData()
{
    set("a.jpg", "city", {QStringLiteral("Lisbon")});
    set("a.jpg", "caption", {QStringLiteral("stays")});
    openGroup("mfPrivateHead");
    m_driver->control<QCheckBox>("mfPrivatePlaces")->click();
    QVERIFY(planned(0, QStringLiteral("City: cleared, was “Lisbon” · without Places")));
    QVERIFY(m_driver->waitFor([this] { return status(3).contains(QStringLiteral("private data stays")); }));
    QVERIFY(run().startsWith(QStringLiteral("1 picture changed")));
    QVERIFY(!pictures::bytesOf(path("a.jpg")).contains("Lisbon"));
    QCOMPARE(value("a.jpg", "caption"), QStringList{QStringLiteral("stays")});
}

void MetadataForm::dryRunWritesNothing()
{
    const QByteArray before = pictures::bytesOf(path("a.jpg"));
    line("mfTitle")->setText(QStringLiteral("Not written"));
    m_driver->control<QCheckBox>("moveSimulation")->click();
    QVERIFY(isReady());
    QCOMPARE(button("startButton")->text(), QStringLiteral("Dry Run: Write Metadata into 4 Pictures"));
    m_driver->click("startButton");
    QVERIFY(m_driver->waitForSummary().startsWith(QStringLiteral("Dry run: 4 pictures would be changed")));
    QCOMPARE(pictures::bytesOf(path("a.jpg")), before);
    QVERIFY(!QFile::exists(path("d.bmp.xmp")));
}

void MetadataForm::refusesWhatMakesNoSense()
{
    openGroup("mfDateHead");
    openGroup("mfPlaceHead");
    line("mfTitle")->setText(QStringLiteral("x"));
    QVERIFY(isReady());
    const QList<std::pair<const char *, QString>> wrong = {{"mfDateTaken", QStringLiteral("yesterday")},
                                                           {"mfShift", QStringLiteral("an hour")},
                                                           {"mfZone", QStringLiteral("CET")},
                                                           {"mfCountryCode", QStringLiteral("Portugal")},
                                                           {"mfHeadline", QStringLiteral("{nothing}")}};
    for (const auto &[name, typed] : wrong) {
        line(name)->setText(typed);
        QVERIFY2(!m_driver->text("problemText").isEmpty(), name);
        QVERIFY2(!button("startButton")->isEnabled(), name);
        line(name)->clear();
        QVERIFY2(m_driver->text("problemText").isEmpty(), name);
        QVERIFY(isReady());
    }
}

void MetadataForm::revertsFromTheLogAfterARestart()
{
    const QByteArray before = pictures::bytesOf(path("a.jpg"));
    line("mfTitle")->setText(QStringLiteral("Later"));
    QVERIFY(planned(0, QStringLiteral("Later")));
    QVERIFY(run().startsWith(QStringLiteral("4 pictures changed")));
    m_driver->startAgain();
    m_driver->show("log");
    auto *table = m_driver->control<window::LogTable>("logTable");
    auto *runs = m_driver->control<window::RunList>("logRuns");
    QVERIFY(m_driver->waitFor([&] { return !table->isReading() && table->model()->rowCount() == 4; }));
    runs->setCurrentIndex(runs->model()->index(1, 0));
    QVERIFY(m_driver->waitFor([this] {
        return m_driver->text("logRunNote").startsWith(QStringLiteral("4 pictures can be reverted. Old values: "));
    }));
    // A value written into one of them is shown when that one is selected.
    table->selectRow(0);
    QVERIFY(m_driver->waitFor([this] { return m_driver->text("logRunNote") == QStringLiteral("Title: “Later”"); }));
    table->clearSelection();
    m_driver->click("logUndo");
    QVERIFY(m_driver->waitFor([&] { return pictures::bytesOf(path("a.jpg")) == before; }));
    QVERIFY(m_driver->waitFor([this] { return !QFile::exists(path("d.bmp.xmp")); }));
}

void MetadataForm::forgetsOldValuesForGood()
{
    line("mfTitle")->setText(QStringLiteral("Later"));
    QVERIFY(planned(0, QStringLiteral("Later")));
    QVERIFY(run().startsWith(QStringLiteral("4 pictures changed")));
    QCOMPARE(keptFiles().size(), 1);
    const QString file = m_driver->folder() + kept + u'/' + keptFiles().constFirst();
    QCOMPARE(QFile(file).permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    m_driver->show("log");
    auto *table = m_driver->control<window::LogTable>("logTable");
    QVERIFY(m_driver->waitFor([&] { return !table->isReading() && table->model()->rowCount() == 4; }));
    auto *runs = m_driver->control<window::RunList>("logRuns");
    runs->setCurrentIndex(runs->model()->index(1, 0));
    QVERIFY(m_driver->waitFor([this] { return button("logForget")->isVisible(); }));
    WindowDriver::answerNextQuestion(QStringLiteral("Forget Old Values"));
    m_driver->click("logForget");
    QVERIFY(keptFiles().isEmpty());
    QVERIFY(!button("logForget")->isVisible());
    QCOMPARE(m_driver->text("logRunNote"), QStringLiteral("No old values of this run are kept."));
    QVERIFY(!button("logUndo")->isEnabled());
    // The log itself says which fields were written, and not what they said.
    const QByteArray log = pictures::bytesOf(m_driver->folder() + QStringLiteral("/.local/share/quorlin/log.jsonl"));
    QVERIFY(log.contains("\"action\":\"Title\"") && !log.contains("Later"));
}

void MetadataForm::keepsAFileThatWasChangedSince()
{
    line("mfTitle")->setText(QStringLiteral("First"));
    QVERIFY(planned(0, QStringLiteral("First")));
    QVERIFY(run().startsWith(QStringLiteral("4 pictures changed")));
    set("a.jpg", "title", {QStringLiteral("By somebody else")});
    m_driver->click("undoButton");
    QVERIFY(m_driver->waitFor(
        [this] { return m_driver->text("statusText").startsWith(QStringLiteral("3 pictures reverted · 1 problem")); }));
    QCOMPARE(value("a.jpg", "title"), QStringList{QStringLiteral("By somebody else")});
    QCOMPARE(value("b.tif", "title"), QStringList());
    QVERIFY(status(0).startsWith(QStringLiteral("Failed")));
}

void MetadataForm::templatesKeepEveryCharacter()
{
    const QString odd = QStringLiteral("It's a | bar, 100 % and\na second line – 日本");
    text("mfCaption")->setPlainText(odd);
    line("mfKeywords")->setText(QStringLiteral("o'clock, a|b"));
    openGroup("mfPlaceHead");
    m_driver->click("mfCityClear");
    m_driver->choosePresetEntry("Save As…");
    line("presetName")->setText(QStringLiteral("Press"));
    QTest::keyClick(line("presetName"), Qt::Key_Return);
    text("mfCaption")->clear();
    line("mfKeywords")->clear();
    m_driver->click("mfCityClear");
    m_driver->startAgain();
    m_driver->show("fields");
    m_driver->choose("preset", QStringLiteral("=Press"));
    QCOMPARE(text("mfCaption")->toPlainText(), odd);
    QCOMPARE(line("mfKeywords")->text(), QStringLiteral("o'clock, a|b"));
    QVERIFY(button("mfCityClear")->isChecked());
}

void MetadataForm::offersKeywordsOfTheList()
{
    const QString file = m_driver->folder() + QStringLiteral("/words.txt");
    QFile words(file);
    QVERIFY(words.open(QIODevice::WriteOnly) && words.write("Lisbon\r\nLissabon\nharbour\n\nLisbon\n") > 0);
    words.close();
    m_driver->answerPanels({file});
    chooseListEntry(0);
    QCOMPARE(m_driver->text("statusText"), QStringLiteral("3 keywords imported"));
    QLineEdit *field = line("mfKeywords");
    field->setFocus();
    QTest::keyClicks(field, QStringLiteral("sea, li"));
    auto *completer = field->findChild<QCompleter *>();
    QVERIFY(completer->popup()->isVisible());
    QCOMPARE(completer->completionCount(), 2);
    QTest::keyClick(completer->popup(), Qt::Key_Down);
    QTest::keyClick(completer->popup(), Qt::Key_Return);
    QCOMPARE(field->text(), QStringLiteral("sea, Lisbon"));
    QVERIFY(!completer->popup()->isVisible());
    QVERIFY(planned(0, QStringLiteral("Keywords: “sea, Lisbon”")));
    QVERIFY(run().startsWith(QStringLiteral("4 pictures changed")));
    const QString copy = m_driver->folder() + QStringLiteral("/out.txt");
    m_driver->answerPanels({copy});
    chooseListEntry(1);
    QCOMPARE(pictures::bytesOf(copy), QByteArray("harbour\nLisbon\nLissabon\nsea\n"));
    WindowDriver::answerNextQuestion(QStringLiteral("Clear"));
    chooseListEntry(3);
    QTest::keyClicks(field, QStringLiteral(", li"));
    QVERIFY(!completer->popup()->isVisible());
}

void MetadataForm::bothFacesShareTheirEntry()
{
    m_driver->click("mfProperties");
    QVERIFY(m_driver->control<QWidget>("metaTree")->isVisible());
    m_driver->show("resize");
    m_driver->show("metadata");
    QVERIFY(m_driver->control<QWidget>("metaTree")->isVisible());
    m_driver->click("metaFields");
    QVERIFY(line("mfTitle")->isVisible());
    m_driver->startAgain();
    QVERIFY(line("mfTitle")->isVisible());
}

void MetadataForm::addMany(int count)
{
    m_more = std::make_unique<QTemporaryDir>();
    for (int i = 0; i < count; ++i)
        QVERIFY(QFile::copy(path("a.jpg"), m_more->filePath(QStringLiteral("m%1.jpg").arg(i, 3, 10, QChar(u'0')))));
    m_driver->drop({m_more->path()});
    QVERIFY(m_driver->waitFor([this, count] { return m_driver->pictures().count() == count + 4; }));
}

void MetadataForm::manyAreWrittenAndReverted()
{
    addMany(60);
    line("mfTitle")->setText(QStringLiteral("{name}"));
    QVERIFY(planned(63, QStringLiteral("m059")));
    QVERIFY2(run().startsWith(QStringLiteral("64 pictures changed")), qPrintable(m_driver->text("statusText")));
    const QByteArray old = pictures::bytesOf(path("d.bmp")); // which has a sidecar now
    for (const QFileInfo &each : QDir(m_more->path()).entryInfoList(QDir::Files))
        QCOMPARE(meta::readFields(each.filePath())
                     ->value(QStringLiteral("fields"))
                     .toMap()
                     .value(QStringLiteral("title"))
                     .toMap()
                     .value(QStringLiteral("value"))
                     .toStringList(),
                 QStringList{each.completeBaseName()}); // each its own
    m_driver->click("undoButton");
    QVERIFY(m_driver->waitFor(
        [this] { return m_driver->text("statusText").startsWith(QStringLiteral("64 pictures reverted")); }, 60000));
    for (const QFileInfo &each : QDir(m_more->path()).entryInfoList(QDir::Files))
        QCOMPARE(pictures::bytesOf(each.filePath()), pictures::bytesOf(path("a.jpg")));
    QCOMPARE(pictures::bytesOf(path("d.bmp")), old);
}

void MetadataForm::picturesOfOneSidecarFollowOneAnother()
{
    // "one.xmp" belongs to both, and each adds its word to it.
    m_more = std::make_unique<QTemporaryDir>();
    for (const char *name : {"one.bmp", "one.BMP"})
        QVERIFY(QFile::copy(path("d.bmp"), m_more->filePath(QString::fromLatin1(name))));
    const QString shared = m_more->filePath(QStringLiteral("one.xmp"));
    QVERIFY(meta::writeFields(m_more->filePath(QStringLiteral("one.bmp")), meta::workOfRating(3)));
    QVERIFY(QFile::rename(m_more->filePath(QStringLiteral("one.bmp.xmp")), shared));
    const QByteArray before = pictures::bytesOf(shared);
    m_driver->drop({m_more->path()});
    QVERIFY(m_driver->waitFor([this] { return m_driver->pictures().count() >= 5; }));
    const int count = m_driver->pictures().count();
    line("mfKeywords")->setText(QStringLiteral("of {name}.{extension}"));
    QVERIFY(planned(count - 1, QStringLiteral("of one")));
    QVERIFY2(run().startsWith(QStringLiteral("%1 pictures changed").arg(count)),
             qPrintable(m_driver->text("statusText")));
    m_driver->click("undoButton");
    QVERIFY(m_driver->waitFor(
        [&] { return m_driver->text("statusText").startsWith(QStringLiteral("%1 pictures reverted").arg(count)); }));
    QCOMPARE(pictures::bytesOf(shared), before);
}

void MetadataForm::whatIsWrittenWhenARunStopsIsKept()
{
    addMany(200);
    line("mfTitle")->setText(QStringLiteral("Stopped"));
    QVERIFY(planned(203, QStringLiteral("Stopped")));
    QVERIFY(isReady());
    WindowDriver::answerNextQuestion(QStringLiteral("Write"));
    m_driver->click("startButton");
    QVERIFY(m_driver->waitFor([this] { return status(3).startsWith(QStringLiteral("OK")); }));
    m_driver->click("cancelButton");
    QVERIFY(m_driver->waitForSummary().startsWith(QStringLiteral("Stopped:")));
    int written = 0;
    for (const QFileInfo &each : QDir(m_more->path()).entryInfoList(QDir::Files))
        written += pictures::bytesOf(each.filePath()).contains("Stopped") ? 1 : 0;
    QVERIFY(written < 200);
    // What is in a file is logged too, so that it can be reverted.
    m_driver->click("undoButton");
    QVERIFY(m_driver->waitFor([&] {
        return m_driver->text("statusText").startsWith(QStringLiteral("%1 pictures reverted").arg(written + 4));
    }));
    for (const QFileInfo &each : QDir(m_more->path()).entryInfoList(QDir::Files))
        QVERIFY(!pictures::bytesOf(each.filePath()).contains("Stopped"));
}

QUORLIN_GUI_TEST(MetadataForm)

#include "tst_metadata_form.moc"
