#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/window/controls/segmented_control.h"
#include "app/window/folders/side_bar.h"
#include "app/window/log/log_table.h"
#include "app/window/log/run_list.h"
#include "app/window/preview/compare_preview.h"
#include "app/window/slots/slot_list.h"
#include "files/items/file_facts.h"

#include "platform/desktop/user_defaults.h"

#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QHelpEvent>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <QUrl>

#include <array>

/** Sort by Hand, as a person works it. */
class Hand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_driver = WindowDriver::started();
        QDir().mkpath(path("In"));
        for (const char *name : {"a.jpg", "b.jpg", "c.jpg", "d.jpg"})
            picture(name, 40, 30);
    }

    void cleanup() { m_driver.reset(); }

    void aKeyMovesThePictureAndShowsTheNext()
    {
        begin({"Lake", "Sea"});
        QCOMPARE(m_driver->text("handName"), QStringLiteral("a.jpg"));
        QCOMPARE(m_driver->text("handPlace"), QStringLiteral("1 of 4"));
        QVERIFY(m_driver->text("handFacts").contains(QStringLiteral("40 × 30 px")));
        key(Qt::Key_2);
        QVERIFY(QFile::exists(path("Sea/a.jpg")) && !QFile::exists(path("In/a.jpg")));
        QCOMPARE(m_driver->text("handName"), QStringLiteral("b.jpg"));
        QCOMPARE(slot(1).count, 1);
        QCOMPARE(slot(0).count, 0);
    }

    void aClickOnASlotWorksAsItsKey()
    {
        begin({"Lake", "Sea"});
        const QRect place = slots()->visualRect(slots()->model()->index(1, 0));
        QTest::mouseClick(slots()->viewport(), Qt::LeftButton, {}, place.center());
        QVERIFY(QFile::exists(path("Sea/a.jpg")));
        slots()->choose(0);
        slots()->setFocus();
        QTest::keyClick(slots(), Qt::Key_Return);
        QVERIFY(QFile::exists(path("Lake/b.jpg")));
    }

    void theModeSaysWhatAKeyDoes_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("words");
        QTest::newRow("copy") << 1 << QStringLiteral("Copied to Lake");
        QTest::newRow("link") << 2 << QStringLiteral("Linked in Lake");
    }

    void theModeSaysWhatAKeyDoes()
    {
        QFETCH(int, mode);
        QFETCH(QString, words);
        begin({"Lake"});
        auto *modes = m_driver->control<window::SegmentedControl>("handMode");
        modes->setFocus();
        for (int i = 0; i < mode; ++i)
            QTest::keyClick(modes, Qt::Key_Right);
        QCOMPARE(m_driver->text("handName"), QStringLiteral("a.jpg"));
        key(Qt::Key_1);
        QVERIFY(QFile::exists(path("In/a.jpg")));
        QCOMPARE(QFileInfo(path("Lake/a.jpg")).isSymLink(), mode == 2);
        key(Qt::Key_Left);
        QCOMPARE(m_driver->text("handDone"), words);
    }

    void nothingIsEverOverwritten()
    {
        begin({"Lake"});
        QFile there(path("Lake/a.jpg"));
        QVERIFY(there.open(QIODevice::WriteOnly) && there.write("another") > 0);
        there.close();
        key(Qt::Key_1);
        QVERIFY(there.open(QIODevice::ReadOnly));
        QCOMPARE(there.readAll(), QByteArray("another"));
        QCOMPARE(QDir(path("Lake")).entryList(QDir::Files).size(), 2);
    }

    void goingBackShowsWhatWasDone()
    {
        begin({"Lake", "Sea"});
        key(Qt::Key_1);
        QVERIFY(!m_driver->control<QLabel>("handDone")->isVisible());
        key(Qt::Key_Left);
        QCOMPARE(m_driver->text("handDone"), QStringLiteral("Moved to Lake"));
        QCOMPARE(m_driver->text("handPlace"), QStringLiteral("1 of 4"));
        key(Qt::Key_2);
        QVERIFY(QFile::exists(path("Sea/a.jpg")) && !QFile::exists(path("Lake/a.jpg")));
        QCOMPARE(slot(0).count, 0);
        QCOMPARE(slot(1).count, 1);
        key(Qt::Key_Backspace);
        QCOMPARE(m_driver->text("handDone"), QStringLiteral("Moved to Lake · Moved to Sea"));
        key(Qt::Key_Right);
        m_driver->click("handSkipButton");
        QCOMPARE(m_driver->text("handName"), QStringLiteral("c.jpg"));
    }

    void aPictureThatFindsNoRoomStays()
    {
        begin({"Lake"});
        const qint64 bytes = QFileInfo(path("In/a.jpg")).size();
        files::setDiskSpaceSource([bytes](const QString &) { return files::DiskSpace{bytes - 1, 1}; });
        QTest::keyClick(&m_driver->window(), Qt::Key_2, Qt::AltModifier);
        key(Qt::Key_1);
        QVERIFY(!QFile::exists(path("Lake/a.jpg")));
        QCOMPARE(m_driver->text("handName"), QStringLiteral("a.jpg"));
        const QString said = m_driver->text("statusText");
        QVERIFY2(said.startsWith(QStringLiteral("Lake: not enough space (needs ")), qPrintable(said));
        QTest::keyClick(&m_driver->window(), Qt::Key_1, Qt::AltModifier); // moving on one disk needs none
        key(Qt::Key_1);
        files::setDiskSpaceSource({});
        QVERIFY(QFile::exists(path("Lake/a.jpg")) && !QFile::exists(path("In/a.jpg")));
    }

    void altAndADigitChooseWhatTheKeysDo_data()
    {
        QTest::addColumn<int>("digit");
        QTest::addColumn<QString>("said");
        QTest::addColumn<bool>("stays");
        QTest::addColumn<bool>("isLink");
        QTest::newRow("move") << int(Qt::Key_1) << QStringLiteral("Keys now move pictures.") << false << false;
        QTest::newRow("copy") << int(Qt::Key_2) << QStringLiteral("Keys now copy pictures.") << true << false;
        QTest::newRow("link") << int(Qt::Key_3) << QStringLiteral("Keys now link pictures.") << true << true;
    }

    void altAndADigitChooseWhatTheKeysDo()
    {
        QFETCH(int, digit);
        QFETCH(QString, said);
        begin({"Lake", "Sea", "Hills"});
        auto *mode = m_driver->control<window::SegmentedControl>("handMode");
        QTest::keyClick(&m_driver->window(), Qt::Key(digit == Qt::Key_1 ? Qt::Key_3 : Qt::Key_1), Qt::AltModifier);
        QTest::keyClick(&m_driver->window(), Qt::Key(digit), Qt::AltModifier);
        QCOMPARE(mode->selectedSegment(), digit - Qt::Key_1);
        QCOMPARE(m_driver->text("statusText"), said);
        QCOMPARE(m_driver->text("handName"), QStringLiteral("a.jpg")); // no folder's key was pressed
        key(Qt::Key_1);
        QTEST(QFile::exists(path("In/a.jpg")), "stays");
        QTEST(QFileInfo(path("Lake/a.jpg")).isSymLink(), "isLink");
        QVERIFY(QFile::exists(path("Lake/a.jpg")));
        m_driver->startAgain(); // and it is remembered
        QCOMPARE(m_driver->control<window::SegmentedControl>("handMode")->selectedSegment(), digit - Qt::Key_1);
    }

    void theTipOfEachModeTellsItsKey()
    {
        begin({"Lake"});
        auto *mode = m_driver->control<window::SegmentedControl>("handMode");
        const std::array<QString, 3> keys = {QStringLiteral("Alt+1"), QStringLiteral("Alt+2"), QStringLiteral("Alt+3")};
        for (int i = 0; i < 3; ++i) {
            const QPoint place(mode->width() * (2 * i + 1) / 6, mode->height() / 2);
            QHelpEvent help(QEvent::ToolTip, place, mode->mapToGlobal(place));
            QCoreApplication::sendEvent(mode, &help);
            QVERIFY2(QToolTip::text().contains(keys[size_t(i)]), qPrintable(QToolTip::text()));
            mode->setSelectedSegment(i);
            QVERIFY(mode->accessibleDescription().contains(keys[size_t(i)]));
        }
    }

    // Two uses of one key would both do nothing.
    void noKeyIsGivenTwice()
    {
        begin({"Lake"});
        QMap<QKeySequence, QString> known;
        const auto note = [&known](const QKeySequence &keys, const QString &use) {
            QVERIFY2(!known.contains(keys), qPrintable(known.value(keys) + QLatin1Char(' ') + use));
            known.insert(keys, use);
        };
        for (const QAction *action : m_driver->window().findChildren<QAction *>())
            for (const QKeySequence &keys : action->isEnabled() ? action->shortcuts() : QList<QKeySequence>())
                note(keys, action->objectName());
        for (const QShortcut *shortcut : m_driver->window().findChildren<QShortcut *>())
            note(shortcut->key(), QStringLiteral("a folder"));
        for (const char *keys : {"Alt+1", "Alt+2", "Alt+3", "Del", "1"})
            QVERIFY2(known.contains(QKeySequence(QString::fromLatin1(keys))), keys);
    }

    void deleteMovesToTheTrash()
    {
        begin({"Lake"});
        key(Qt::Key_Delete);
        QVERIFY(!QFile::exists(path("In/a.jpg")));
        QVERIFY(QFile::exists(m_driver->folder() + QStringLiteral("/.local/share/Trash/files/a.jpg")));
        key(Qt::Key_Left);
        QCOMPARE(m_driver->text("handDone"), QStringLiteral("In the trash"));
        QCOMPARE(m_driver->control<window::ComparePreview>("handView")->problem(), QStringLiteral("In the trash"));
        key(Qt::Key_1);
        QVERIFY(m_driver->text("statusText").contains(QStringLiteral("Use Undo to restore it")));
        m_driver->show("resize");
        QCOMPARE(m_driver->pictures().count(), 3);
    }

    void undoTakesBackAnyNumberOfSteps()
    {
        begin({"Lake", "Sea"});
        const QStringList before = everything();
        key(Qt::Key_1);
        key(Qt::Key_2);
        key(Qt::Key_Delete);
        key(Qt::Key_1);
        QVERIFY(everything() != before);
        for (const char *name : {"d.jpg", "c.jpg", "b.jpg", "a.jpg"}) {
            QTest::keyClick(&m_driver->window(), Qt::Key_Z, Qt::ControlModifier);
            QCOMPARE(m_driver->text("handName"), QString::fromLatin1(name));
            QVERIFY(!m_driver->control<QLabel>("handDone")->isVisible());
        }
        QCOMPARE(everything(), before);
        QVERIFY(!m_driver->control<QPushButton>("handUndoButton")->isEnabled());
        QCOMPARE(slot(0).count + slot(1).count, 0);
    }

    void aFolderThatIsMissingOrLockedIsSaidBeforeTheFirstKey()
    {
        QDir().mkpath(path("Locked"));
        QFile::setPermissions(path("Locked"), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
        begin({"Lake", "Gone", "Locked"});
        QDir().rmdir(path("Gone"));
        m_driver->show("resize");
        m_driver->show("hand");
        QCOMPARE(slot(0).problem, QString());
        QCOMPARE(slot(1).problem, QStringLiteral("not found"));
        const bool isRoot = QFileInfo(path("Locked")).isWritable();
        QCOMPARE(slot(2).problem, isRoot ? QString() : QStringLiteral("read-only"));
        key(Qt::Key_2);
        QCOMPARE(m_driver->text("handName"), QStringLiteral("a.jpg"));
        QVERIFY(QFile::exists(path("In/a.jpg")));
        QVERIFY(m_driver->text("statusText").startsWith(QStringLiteral("Gone: not found")));
        QVERIFY(!QFile::exists(path("Gone")));
        QFile::setPermissions(path("Locked"), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    }

    void lettersAndLettersWithShiftAreKeysToo()
    {
        QStringList names;
        for (int i = 0; i < 59; ++i)
            names.append(QStringLiteral("F%1").arg(i + 1));
        begin(names);
        QCOMPARE(slots()->count(), 59);
        key(Qt::Key_0);
        key(Qt::Key_A);
        QTest::keyClick(&m_driver->window(), Qt::Key_W, Qt::ShiftModifier);
        QVERIFY(QFile::exists(path("F10/a.jpg")));
        QVERIFY(QFile::exists(path("F11/b.jpg")));
        QVERIFY(QFile::exists(path("F59/c.jpg")));
        QVERIFY(!m_driver->control<QPushButton>("handAdd")->isEnabled());
        QCOMPARE(window::SlotRows::keyCap(slot(58).key), QStringLiteral("⇧W"));
    }

    void keysWorkWhereverTheFocusIsButInTextFields()
    {
        begin({"Lake"});
        m_driver->control<window::SideBar>("sideBar")->setFocus();
        QTest::keyClick(m_driver->control<window::SideBar>("sideBar"), Qt::Key_1);
        QVERIFY(QFile::exists(path("Lake/a.jpg")));
        m_driver->click("handNew");
        auto *name = m_driver->control<QLineEdit>("handNewName");
        QTest::keyClicks(name, QStringLiteral("1"));
        QTest::keyClick(name, Qt::Key_Backspace);
        QTest::keyClick(name, Qt::Key_Delete);
        QVERIFY(QFile::exists(path("In/b.jpg")));
        QCOMPARE(m_driver->text("handName"), QStringLiteral("b.jpg"));
        m_driver->click("handNewCancel");
        m_driver->show("resize");
        key(Qt::Key_1);
        QVERIFY(QFile::exists(path("In/b.jpg")));
    }

    void foldersAreAddedByPanelByDropAndAnew()
    {
        begin({});
        QVERIFY(m_driver->control<QLabel>("handSlotsEmpty")->isVisible());
        QDir().mkpath(path("Lake"));
        QDir().mkpath(path("Sea"));
        m_driver->answerPanels({path("Lake")});
        m_driver->click("handAdd");
        dropOnSlots({path("Sea"), path("Lake")});
        QCOMPARE(labels(), QStringLiteral("Lake Sea"));
        m_driver->click("handNew");
        auto *name = m_driver->control<QLineEdit>("handNewName");
        name->setText(QStringLiteral("Sea"));
        QVERIFY(!m_driver->control<QPushButton>("handNewMake")->isEnabled());
        name->setText(QStringLiteral("a/b"));
        QVERIFY(!m_driver->control<QPushButton>("handNewMake")->isEnabled());
        name->setText(QStringLiteral("New one"));
        QTest::keyClick(name, Qt::Key_Return);
        QVERIFY(QFileInfo(path("New one")).isDir());
        QCOMPARE(labels(), QStringLiteral("Lake Sea New one"));
        QVERIFY(!name->isVisible());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right); // wherever the focus went
        QCOMPARE(m_driver->text("handName"), QStringLiteral("b.jpg"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
        slots()->setFocus();
        QTest::keyClick(slots(), Qt::Key_Right);
        QCOMPARE(m_driver->text("handName"), QStringLiteral("b.jpg"));
        QTest::keyClick(slots(), Qt::Key_Left);
        key(Qt::Key_3);
        QVERIFY(QFile::exists(path("New one/a.jpg")));
    }

    void aLabelIsEditedByItsKey()
    {
        begin({"Lake", "Sea"});
        slots()->choose(1);
        slots()->setFocus();
        QTest::keyClick(slots(), Qt::Key_F2);
        auto *field = qobject_cast<QLineEdit *>(m_driver->window().focusWidget());
        QVERIFY(field && slots()->isAncestorOf(field));
        QTest::keyClicks(field, QStringLiteral("2 seas"));
        QTest::keyClick(field, Qt::Key_Return);
        QTRY_COMPARE(labels(), QStringLiteral("Lake 2 seas"));
        QVERIFY2(QFile::exists(path("In/a.jpg")), "the keys of a label sort no picture");
    }

    void slotsAreRenamedMovedAndRemoved()
    {
        begin({"Lake", "Sea", "Hills"});
        slots()->choose(2);
        act("Move Up");
        QCOMPARE(labels(), QStringLiteral("Lake Hills Sea"));
        Q_EMIT slots()->slotMoved(0, 2);
        QCOMPARE(labels(), QStringLiteral("Hills Sea Lake"));
        slots()->model()->setData(slots()->model()->index(1, 0), QStringLiteral("By the sea"));
        QCOMPARE(labels(), QStringLiteral("Hills By the sea Lake"));
        key(Qt::Key_2);
        QVERIFY(QFile::exists(path("Sea/a.jpg")));
        slots()->choose(0);
        act("Remove from List");
        QCOMPARE(labels(), QStringLiteral("By the sea Lake"));
        QVERIFY(QFileInfo(path("Hills")).isDir());
        m_driver->startAgain();
        QCOMPARE(labels(), QStringLiteral("By the sea Lake"));
        WindowDriver::answerNextQuestion(QStringLiteral("Remove"));
        act("Remove All…");
        QCOMPARE(slots()->count(), 0);
    }

    void aPresetKeepsAllFolders()
    {
        begin({"Lake", "Sea"});
        slots()->model()->setData(slots()->model()->index(1, 0), QStringLiteral("Anna's | sea"));
        menu("presetMenu", "Save As…");
        m_driver->control<QLineEdit>("presetName")->setText(QStringLiteral("My folders"));
        QTest::keyClick(m_driver->control<QLineEdit>("presetName"), Qt::Key_Return);
        slots()->choose(0);
        act("Remove from List");
        QCOMPARE(m_driver->control<QComboBox>("preset")->currentText(), QStringLiteral("• My folders"));
        m_driver->startAgain();
        m_driver->choose("preset", QStringLiteral("=My folders"));
        QCOMPARE(labels(), QStringLiteral("Lake Anna's | sea"));
        QCOMPARE(m_driver->control<QComboBox>("preset")->currentText(), QStringLiteral("My folders"));
    }

    void aSessionIsARunOfTheLog()
    {
        begin({"Lake"});
        key(Qt::Key_1);
        key(Qt::Key_1);
        m_driver->show("log");
        auto *log = m_driver->control<window::LogTable>("logTable");
        QVERIFY(m_driver->waitFor([log] { return log->shownCount() == 2; }));
        QCOMPARE(log->model()->index(0, window::LogModel::Action).data().toString(),
                 QStringLiteral("Sort by Hand, Move to Lake"));
        QCOMPARE(m_driver->control<window::RunList>("logRuns")->model()->rowCount(), 2);
    }

    void aSessionIsUndoneFromTheLogAfterARestart()
    {
        begin({"Lake", "Sea"});
        const QStringList before = everything();
        key(Qt::Key_1);
        key(Qt::Key_2);
        key(Qt::Key_Delete);
        m_driver->show("log");
        m_driver->startAgain();
        m_driver->show("log");
        auto *runs = m_driver->control<window::RunList>("logRuns");
        auto *log = m_driver->control<window::LogTable>("logTable");
        QVERIFY(m_driver->waitFor([log] { return log->totalCount() == 3; }));
        runs->setCurrentIndex(runs->model()->index(1, 0));
        QCOMPARE(m_driver->text("logRunNote"), QStringLiteral("3 files can be restored."));
        m_driver->click("logUndo");
        QVERIFY(m_driver->waitFor([log] { return log->totalCount() == 6; }));
        QCOMPARE(everything(), before);
        QVERIFY(m_driver->text("statusText").contains(QStringLiteral("3 files restored")));
        QVERIFY(!m_driver->control<QPushButton>("logUndo")->isEnabled());
        QVERIFY(!m_driver->text("logRunNote").isEmpty());
    }

    void saysWhenTheLastPictureIsSorted()
    {
        begin({"Lake"});
        for (int i = 0; i < 3; ++i)
            key(Qt::Key_1);
        key(Qt::Key_1);
        QVERIFY(m_driver->text("statusText").contains(QStringLiteral("All of them are sorted")));
        QCOMPARE(m_driver->text("handDone"), QStringLiteral("Moved to Lake"));
    }

    void everyControlHasANameThatIsSpoken()
    {
        begin({"Lake"});
        key(Qt::Key_1);
        QCOMPARE(slots()->model()->index(0, 0).data(Qt::AccessibleTextRole).toString(),
                 QStringLiteral("1: Lake, 1 picture"));
        for (const char *name : {"handSlots", "handMode", "handMore", "handView"})
            QVERIFY2(!m_driver->control<QWidget>(name)->accessibleName().isEmpty(), name);
    }

    void theNextPictureIsThereWithoutAWait();

private:
    QString path(const char *name) const { return path(QString::fromLatin1(name)); }
    QString path(const QString &name) const { return m_driver->folder() + QLatin1Char('/') + name; }

    void picture(const char *name, int width, int height)
    {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::darkCyan);
        QVERIFY(image.save(path("In/") + QString::fromLatin1(name)));
    }

    void begin(const QStringList &folders)
    {
        QJsonArray slots;
        for (const QString &folder : folders) {
            QDir().mkpath(path(folder));
            slots.append(QJsonObject{{QStringLiteral("path"), path(folder)}, {QStringLiteral("label"), QString()}});
        }
        const QJsonObject settings = {{QStringLiteral("mode"), QStringLiteral("move")},
                                      {QStringLiteral("slots"), slots}};
        platform::setUserDefault(QStringLiteral("Settings-hand"),
                                 QString::fromUtf8(QJsonDocument(settings).toJson(QJsonDocument::Compact)));
        m_driver->startAgain();
        m_driver->show("hand");
        m_driver->window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&m_driver->window()));
        m_driver->drop({path("In")});
        m_driver->control<window::ComparePreview>("handView")->setFocus();
    }

    void begin(std::initializer_list<const char *> folders)
    {
        QStringList names;
        for (const char *folder : folders)
            names.append(QString::fromLatin1(folder));
        begin(names);
    }

    void key(Qt::Key key) { QTest::keyClick(&m_driver->window(), key); }
    window::SlotList *slots() { return m_driver->control<window::SlotList>("handSlots"); }
    const window::Slot &slot(int row) { return slots()->rows().slot(row); }

    QString labels()
    {
        QStringList all;
        for (int row = 0; row < slots()->count(); ++row)
            all.append(slot(row).label);
        return all.join(QLatin1Char(' '));
    }

    void menu(const char *button, const char *entry)
    {
        for (QAction *action : m_driver->control<QPushButton>(button)->menu()->actions())
            if (action->text() == QString::fromUtf8(entry))
                return action->trigger();
        QFAIL(entry);
    }

    void act(const char *entry) { menu("handMore", entry); }

    void dropOnSlots(const QStringList &folders)
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString &folder : folders)
            urls.append(QUrl::fromLocalFile(folder));
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(20, 20), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(slots()->viewport(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(20, 20), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(slots()->viewport(), &drop);
    }

    // All files with their sizes, but those of the program itself.
    QStringList everything()
    {
        QStringList all;
        for (const char *folder : {"In", "Lake", "Sea"})
            for (const QFileInfo &info : QDir(path(folder)).entryInfoList(QDir::Files | QDir::Hidden))
                all.append(info.filePath() + QLatin1Char(' ') + QString::number(info.size()));
        return all;
    }

    std::unique_ptr<WindowDriver> m_driver;
};

// From the key to the next picture on the screen, with pictures of 24 megapixels; the bound is generous, the figure is
// printed.
void Hand::theNextPictureIsThereWithoutAWait()
{
    QImage large(6000, 4000, QImage::Format_RGB32);
    QPainter painter(&large);
    for (int i = 0; i < 6; ++i) {
        QLinearGradient colors(0, 0, 6000, 4000);
        colors.setColorAt(0, QColor::fromHsv(i * 50, 200, 220));
        colors.setColorAt(1, QColor::fromHsv(i * 50 + 40, 120, 90));
        painter.fillRect(large.rect(), colors);
        for (int line = 0; line < 400; ++line)
            painter.drawLine((line * 7919) % 6000, 0, (line * 104729) % 6000, 4000);
        QVERIFY(large.save(path(QStringLiteral("In/a%1.jpg").arg(i)), "JPEG", 92));
    }
    begin({"Lake"});
    auto *view = m_driver->control<window::ComparePreview>("handView");
    QSignalSpy shown(view, &window::ComparePreview::pictureShown);
    QVERIFY(shown.wait(20000));
    QStringList figures;
    for (int i = 0; i < 5; ++i) {
        QTest::qWait(600); // somebody looks at the picture
        shown.clear();
        QElapsedTimer clock;
        clock.start();
        key(Qt::Key_1);
        QVERIFY(shown.count() > 0 || shown.wait(20000));
        view->repaint();
        figures.append(QString::number(clock.elapsed()));
        QVERIFY(clock.elapsed() < 3000);
    }
    qInfo("from the key to the next picture of 24 megapixels on the screen: %s ms",
          qPrintable(figures.join(QStringLiteral(", "))));
}

QUORLIN_GUI_TEST(Hand)
#include "tst_hand.moc"
