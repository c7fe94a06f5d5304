#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "meta/metadata_file.h"
#include "platform/imageio/metadata/metadata.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QHeaderView>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalSpy>
#include <QTest>

#include <unistd.h>

using window::PictureModel;

/** Properties of pictures as columns of the list, sorting by them, and filters of what is shown and processed. */
class TestListProperties : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_driver.reset(); }
    void anyPropertyIsAColumn();
    void columnsAreKept();
    void sortsNumbersAsNumbers();
    void showsHowFarReadingIs();
    void readsOnlyRowsInView();
    void escapeEndsSortingTenThousand();
    void thousandsAreSorted();
    void filtersByPropertyComparisonAndValue();
    void joinsRulesByAllOrAny();
    void typedTextIsSearchedInNamesAndValues();
    void filtersAreKeptUnderNames();
    void aRunWorksOnWhatIsShown();
    void escapeShowsAll();
    void sidecarsCount();

private:
    void addLinks(int count);
    void picture(const QString &name, int iso, const QString &copyright);
    QString path(const QString &name) const { return m_driver->inputFolder() + u'/' + name; }
    window::PictureTable &list() { return m_driver->pictures(); }
    QStringList shownNames();
    bool shows(const QStringList &names)
    {
        return m_driver->waitFor([&] { return list().isSettled() && shownNames() == names; });
    }
    QStringList column(int column);
    template<typename T> T *part(const char *name)
    {
        auto *found = m_window->findChild<T *>(QString::fromLatin1(name));
        if (!found)
            qFatal("no control %s", name);
        return found;
    }
    void open();
    void chooseProperty(const char *button, const QString &words);
    void rule(int row, const QString &words, const QString &comparison, const QString &value);

    std::unique_ptr<WindowDriver> m_driver;
    QWidget *m_window = nullptr;
};

void TestListProperties::picture(const QString &name, int iso, const QString &copyright)
{
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    QBuffer buffer;
    QVERIFY(buffer.open(QIODevice::WriteOnly));
    QVERIFY(image.save(&buffer, "jpeg"));
    QByteArray bytes = buffer.data();
    if (iso > 0) {
        const QVariantMap exif = {{QStringLiteral("ISOSpeedRatings"), QVariantList{iso}}};
        const auto written = platform::Metadata::fromProperties({{QStringLiteral("{Exif}"), exif}}).writtenInto(bytes);
        QVERIFY(written);
        bytes = *written;
    }
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    if (copyright.isEmpty())
        return;
    meta::MetadataWork work;
    work.fields.insert(QStringLiteral("copyright"), {meta::FieldEdit::What::Set, {copyright}});
    QVERIFY(meta::writeFields(path(name), work));
}

void TestListProperties::init()
{
    m_driver = WindowDriver::showing("resize");
    picture(QStringLiteral("a.jpg"), 800, QStringLiteral("Ann"));
    picture(QStringLiteral("b.jpg"), 6400, {});
    picture(QStringLiteral("c.jpg"), 12800, QStringLiteral("Bob"));
    picture(QStringLiteral("d.jpg"), 0, QStringLiteral("Ann & Bob"));
    m_driver->drop({m_driver->inputFolder()});
    QCOMPARE(list().count(), 4);
    open();
}

void TestListProperties::open()
{
    m_driver->trigger("listPropertiesAction");
    m_window = nullptr;
    QVERIFY(m_driver->waitFor([this] {
        for (QWidget *each : QApplication::topLevelWidgets())
            if (each->objectName() == QLatin1String("listPropertiesWindow") && each->isVisible())
                m_window = each;
        return m_window != nullptr;
    }));
}

QStringList TestListProperties::shownNames()
{
    return column(PictureModel::Name);
}

QStringList TestListProperties::column(int column)
{
    QStringList cells;
    const QAbstractItemModel &model = *list().model();
    for (int row = 0; row < model.rowCount(); ++row)
        cells << model.index(row, column).data().toString();
    return cells;
}

/** As a person chooses it from the menu. */
void TestListProperties::chooseProperty(const char *button, const QString &words)
{
    part<QAbstractButton>(button)->click();
    auto *entries = part<QWidget>("propMenu")->findChild<QListWidget *>();
    for (int i = 0; i < entries->count(); ++i) {
        if (entries->item(i)->text() != words)
            continue;
        entries->setCurrentRow(i);
        QTest::keyClick(part<QWidget>("propMenu")->findChild<QLineEdit *>(), Qt::Key_Return);
        return;
    }
    QFAIL(qPrintable(words + QStringLiteral(" is not offered")));
}

void TestListProperties::rule(int row, const QString &words, const QString &comparison, const QString &value)
{
    const auto named = [row](const char *name) { return QByteArray(name) + QByteArray::number(row); };
    chooseProperty(named("propProperty").constData(), words);
    auto *box = part<QComboBox>(named("propComparison").constData());
    box->setCurrentIndex(box->findText(comparison));
    Q_EMIT box->activated(box->currentIndex());
    part<QLineEdit>(named("propValue").constData())->setText(value);
}

void TestListProperties::anyPropertyIsAColumn()
{
    chooseProperty("propAddColumn", QStringLiteral("Copyright"));
    chooseProperty("propAddColumn", QStringLiteral("ISO speed ratings"));
    // Only the current picture's own properties include this one.
    chooseProperty("propAddColumn", QStringLiteral("JFIF: X density"));
    QVERIFY(m_driver->waitFor([this] {
        return column(PictureModel::FirstProperty) ==
               QStringList({QStringLiteral("Ann"), QString(), QStringLiteral("Bob"), QStringLiteral("Ann & Bob")});
    }));
    // A row without a copyright may be read after the others.
    const QStringList speeds = {QStringLiteral("800"), QStringLiteral("6,400"), QStringLiteral("12,800"), QString()};
    QVERIFY(m_driver->waitFor([&] { return column(PictureModel::FirstProperty + 1) == speeds; }));
    QVERIFY(m_driver->waitFor([this] { return !column(PictureModel::FirstProperty + 2).contains(QString()); }));
    const QHeaderView &header = *list().horizontalHeader();
    QVERIFY(!header.isSectionHidden(PictureModel::FirstProperty));
    QVERIFY(header.isSectionHidden(PictureModel::FirstProperty + 3));
    QCOMPARE(list().model()->headerData(PictureModel::FirstProperty, Qt::Horizontal).toString(),
             QStringLiteral("Copyright"));
    part<QAbstractButton>("propNoColumns")->click();
    QVERIFY(header.isSectionHidden(PictureModel::FirstProperty));
}

void TestListProperties::columnsAreKept()
{
    chooseProperty("propAddColumn", QStringLiteral("Copyright"));
    m_driver->startAgain();
    QCOMPARE(list().propertyColumns(), QStringList(QStringLiteral("copyright")));
    QCOMPARE(list().model()->headerData(PictureModel::FirstProperty, Qt::Horizontal).toString(),
             QStringLiteral("Copyright"));
}

void TestListProperties::sortsNumbersAsNumbers()
{
    chooseProperty("propAddColumn", QStringLiteral("ISO speed ratings"));
    list().horizontalHeader()->setSortIndicator(PictureModel::FirstProperty, Qt::DescendingOrder);
    // As text, 800 comes before 6400 and 12800.
    QVERIFY(m_driver->waitFor([this] { return shownNames().indexOf(QStringLiteral("a.jpg")) > 1; }));
    list().horizontalHeader()->setSortIndicator(PictureModel::FirstProperty, Qt::AscendingOrder);
    QVERIFY(
        shows({QStringLiteral("a.jpg"), QStringLiteral("b.jpg"), QStringLiteral("c.jpg"), QStringLiteral("d.jpg")}));
}

void TestListProperties::showsHowFarReadingIs()
{
    QTemporaryDir more;
    for (int i = 0; i < 300; ++i)
        QVERIFY(QFile::copy(path(QStringLiteral("a.jpg")), more.filePath(QStringLiteral("m%1.jpg").arg(i))));
    m_driver->drop({more.path()});
    QVERIFY(m_driver->waitFor([this] { return list().count() == 304; }));
    QSignalSpy progress(&list(), &window::PictureTable::propertiesProgress);
    chooseProperty("propAddColumn", QStringLiteral("ISO speed ratings"));
    list().horizontalHeader()->setSortIndicator(PictureModel::FirstProperty, Qt::AscendingOrder);
    QVERIFY(!list().isSettled()); // nothing starts before the order is known
    QVERIFY(m_driver->waitFor([this] { return list().isSettled(); }, 60000));
    QVERIFY(!progress.isEmpty());
    QCOMPARE(progress.constLast().at(0).toInt(), 304);
    QCOMPARE(progress.constLast().at(1).toInt(), 304);
    for (const QList<QVariant> &told : std::as_const(progress))
        QVERIFY(told.at(0).toInt() <= told.at(1).toInt());
}

/** Adds so many files with the content of the first three pictures, by turns. */
void TestListProperties::addLinks(int count)
{
    const QString folder = m_driver->folder() + QStringLiteral("/many");
    QVERIFY(QDir().mkpath(folder));
    const QList<QByteArray> sources = {QFile::encodeName(path(QStringLiteral("c.jpg"))),
                                       QFile::encodeName(path(QStringLiteral("a.jpg"))),
                                       QFile::encodeName(path(QStringLiteral("b.jpg")))};
    for (int i = 0; i < count; ++i) {
        const QByteArray target = QFile::encodeName(folder) + "/m" + QByteArray::number(i + 10000) + ".jpg";
        QCOMPARE(::link(sources[i % sources.size()].constData(), target.constData()), 0);
    }
    m_driver->drop({folder});
    QVERIFY(m_driver->waitFor([&] { return list().count() == count + 4; }));
}

void TestListProperties::readsOnlyRowsInView()
{
    constexpr int count = 600;
    addLinks(count);
    chooseProperty("propAddColumn", QStringLiteral("ISO speed ratings"));
    const auto isRead = [this](int row) {
        return !list().model()->index(row, PictureModel::FirstProperty).data().toString().isEmpty();
    };
    QVERIFY(m_driver->waitFor([&] { return isRead(0) && isRead(1) && isRead(2); }));
    // Sizes of all rows arrive later than the properties of those in view.
    QVERIFY(m_driver->waitFor(
        [this] { return !list().model()->index(count + 3, PictureModel::Pixels).data().toString().isEmpty(); }, 60000));
    QVERIFY(list().rowAt(list().viewport()->height() - 1) < count / 2);
    for (int row = count / 2; row < count + 4; ++row)
        QVERIFY2(!isRead(row), qPrintable(QString::number(row)));
    list().scrollToBottom();
    QVERIFY(m_driver->waitFor([&] { return isRead(count + 3); }));
    QVERIFY(!isRead(count / 2));
}

void TestListProperties::escapeEndsSortingTenThousand()
{
    constexpr int count = 10000;
    addLinks(count);
    const QStringList before = shownNames();
    QSignalSpy progress(&list(), &window::PictureTable::propertiesProgress);
    chooseProperty("propAddColumn", QStringLiteral("ISO speed ratings"));
    list().horizontalHeader()->setSortIndicator(PictureModel::FirstProperty, Qt::AscendingOrder);
    const auto done = [&progress] { return progress.isEmpty() ? 0 : progress.constLast().at(0).toInt(); };
    QVERIFY(m_driver->waitFor([&] { return done() > 0; }));
    QVERIFY2(done() < count, qPrintable(QString::number(done())));
    QCOMPARE(
        m_driver->text("statusText"),
        QStringLiteral("Reading properties: %1 of %2").arg(QLocale().toString(done()), QLocale().toString(count + 4)));
    m_driver->trigger("cancelAction");
    QVERIFY(m_driver->waitFor([this] { return list().isSettled(); }));
    QVERIFY(list().sorting().isEmpty());
    QCOMPARE(shownNames(), before);
    QVERIFY(column(PictureModel::FirstProperty).count(QString()) > 1); // only d.jpg has no value
}

void TestListProperties::thousandsAreSorted()
{
    const int count = tests::repetitions(1000, 10000);
    addLinks(count);
    chooseProperty("propAddColumn", QStringLiteral("ISO speed ratings"));
    QElapsedTimer clock;
    clock.start();
    list().horizontalHeader()->setSortIndicator(PictureModel::FirstProperty, Qt::AscendingOrder);
    QVERIFY(!list().isSettled());
    QVERIFY(m_driver->waitFor([this] { return list().isSettled(); }, 1'200'000));
    qInfo("%d pictures were read and sorted in %lld ms", count, clock.elapsed());
    const QStringList values = column(PictureModel::FirstProperty);
    QStringList wanted;
    for (const char *speed : {"800", "6,400", "12,800"})
        wanted += QStringList(values.count(QLatin1String(speed)), QLatin1String(speed));
    QCOMPARE(values, wanted + QStringList(QString())); // d.jpg has none
    QCOMPARE(values.size(), count + 4);
}

void TestListProperties::filtersByPropertyComparisonAndValue()
{
    rule(1, QStringLiteral("ISO speed ratings"), QStringLiteral("above"), QStringLiteral("3200"));
    QVERIFY(shows({QStringLiteral("b.jpg"), QStringLiteral("c.jpg")}));
    QCOMPARE(list().count(), 2);
    QVERIFY(m_driver->control<QWidget>("filterBar")->isVisible());
    rule(1, QStringLiteral("Copyright"), QStringLiteral("is empty"), {});
    QVERIFY(shows({QStringLiteral("b.jpg")}));
    rule(1, QStringLiteral("Copyright"), QStringLiteral("contains"), QStringLiteral("bob"));
    QVERIFY(shows({QStringLiteral("c.jpg"), QStringLiteral("d.jpg")}));
    m_driver->click("filterShowAll");
    QCOMPARE(list().count(), 4);
    QVERIFY(!list().isFiltered());
    QVERIFY(part<QLineEdit>("propValue1")->text().isEmpty()); // the window says so too
}

void TestListProperties::joinsRulesByAllOrAny()
{
    rule(1, QStringLiteral("ISO speed ratings"), QStringLiteral("above"), QStringLiteral("3200"));
    part<QAbstractButton>("propAdd")->click();
    rule(2, QStringLiteral("Copyright"), QStringLiteral("is not empty"), {});
    QVERIFY(shows({QStringLiteral("c.jpg")}));
    auto *join = part<QComboBox>("propJoin");
    join->setCurrentIndex(1);
    Q_EMIT join->activated(1);
    QVERIFY(
        shows({QStringLiteral("a.jpg"), QStringLiteral("b.jpg"), QStringLiteral("c.jpg"), QStringLiteral("d.jpg")}));
    part<QAbstractButton>("propRemove2")->click();
    QVERIFY(shows({QStringLiteral("b.jpg"), QStringLiteral("c.jpg")}));
}

void TestListProperties::typedTextIsSearchedInNamesAndValues()
{
    part<QLineEdit>("propText")->setText(QStringLiteral("ann"));
    QVERIFY(shows({QStringLiteral("a.jpg"), QStringLiteral("d.jpg")}));
    part<QLineEdit>("propText")->setText(QStringLiteral("d. ann"));
    QVERIFY(shows({QStringLiteral("d.jpg")}));
    part<QLineEdit>("propText")->setText(QStringLiteral("Copyright")); // the name of a property is not a value
    QVERIFY(shows({}));
    part<QLineEdit>("propText")->setText({});
    QVERIFY(m_driver->waitFor([this] { return list().count() == 4; }));
}

void TestListProperties::filtersAreKeptUnderNames()
{
    rule(1, QStringLiteral("ISO speed ratings"), QStringLiteral("below"), QStringLiteral("1000"));
    part<QLineEdit>("propName")->setText(QStringLiteral("Day’s light"));
    part<QAbstractButton>("propKeep")->click();
    QVERIFY(shows({QStringLiteral("a.jpg")}));
    m_driver->startAgain();
    m_driver->drop({m_driver->inputFolder()});
    QVERIFY(m_driver->waitFor([this] { return list().count() == 4; }));
    open();
    auto *kept = part<QComboBox>("propKept");
    QVERIFY(kept->findText(QStringLiteral("Day’s light")) > 0);
    kept->setCurrentIndex(kept->findText(QStringLiteral("Day’s light")));
    Q_EMIT kept->activated(kept->currentIndex());
    QVERIFY(shows({QStringLiteral("a.jpg")}));
    QCOMPARE(part<QAbstractButton>("propProperty1")->text(), QStringLiteral("ISO speed ratings"));
    QCOMPARE(part<QLineEdit>("propValue1")->text(), QStringLiteral("1000"));
    part<QAbstractButton>("propForget")->click();
    QCOMPARE(part<QComboBox>("propKept")->count(), 1);
}

void TestListProperties::aRunWorksOnWhatIsShown()
{
    rule(1, QStringLiteral("Copyright"), QStringLiteral("is"), QStringLiteral("ann"));
    QVERIFY(shows({QStringLiteral("a.jpg")}));
    auto *start = m_driver->control<QAbstractButton>("startButton");
    QVERIFY(m_driver->waitFor([start] { return start->isEnabled() && start->text().contains(u'1'); }));
    start->click();
    QVERIFY2(m_driver->waitForSummary().startsWith(QLatin1String("1 ")), qPrintable(m_driver->text("statusText")));
}

void TestListProperties::escapeShowsAll()
{
    rule(1, QStringLiteral("Copyright"), QStringLiteral("is"), QStringLiteral("Ann"));
    QVERIFY(shows({QStringLiteral("a.jpg")}));
    m_window->close();
    m_driver->trigger("cancelAction");
    QCOMPARE(list().count(), 4);
}

void TestListProperties::sidecarsCount()
{
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(Qt::darkBlue);
    QVERIFY(image.save(path(QStringLiteral("e.bmp"))));
    meta::MetadataWork work;
    work.fields.insert(QStringLiteral("copyright"), {meta::FieldEdit::What::Set, {QStringLiteral("Cleo")}});
    QVERIFY(meta::writeFields(path(QStringLiteral("e.bmp")), work));
    QVERIFY(QFile::exists(path(QStringLiteral("e.bmp.xmp"))));
    m_driver->drop({m_driver->inputFolder()});
    QVERIFY(m_driver->waitFor([this] { return list().count() == 5; }));
    rule(1, QStringLiteral("Copyright"), QStringLiteral("is"), QStringLiteral("Cleo"));
    QVERIFY(shows({QStringLiteral("e.bmp")}));
}

QUORLIN_GUI_TEST(TestListProperties)
#include "tst_list_properties.moc"
