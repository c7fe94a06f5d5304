#include "tests/gui/support/window_driver.h"

#include "app/window/folders/folder_tree.h"
#include "app/window/look/key_header.h"
#include "tests/support/dated_pictures.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QImage>
#include <QPushButton>
#include <QScopeGuard>
#include <QScrollBar>
#include <QTest>
#include <QXmlStreamReader>

using window::PictureModel;

namespace {

/** The parts of the interface whose texts appear as reasons in the list, and those of the engine. */
QSet<QString> contextsOf(const QString &action)
{
    if (action == QLatin1String("rename"))
        return {QStringLiteral("move-words"), QStringLiteral("move-run"), QStringLiteral("rename-step"),
                QStringLiteral("platform")};
    if (action == QLatin1String("sort"))
        return {QStringLiteral("move-words"), QStringLiteral("move-run"), QStringLiteral("sort-step"),
                QStringLiteral("platform")};
    return {QStringLiteral("job"),
            QStringLiteral("plan"),
            QStringLiteral("write-plan"),
            QStringLiteral("write-run"),
            QStringLiteral("by-recipe"),
            QStringLiteral("written"),
            QStringLiteral("crop-step"),
            QStringLiteral("round-step"),
            QStringLiteral("background-step"),
            QStringLiteral("image::PictureService"),
            QStringLiteral("platform")};
}

struct Text
{
    QString context;
    QString source;
    QString translation;
};

/** All texts of the interface in a language; in English they are their own translation. */
QList<Text> textsIn(const QString &language)
{
    const bool isEnglish = language == QLatin1String("en");
    QFile file(QStringLiteral(QUORLIN_INTERFACE_FOLDER) +
               QStringLiteral("/texts/quorlin_%1.ts").arg(isEnglish ? QStringLiteral("de") : language));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no texts in %s", qPrintable(language));
    QList<Text> texts;
    Text text;
    for (QXmlStreamReader xml(&file); !xml.atEnd(); xml.readNext()) {
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("name"))
            text.context = xml.readElementText();
        else if (xml.name() == QLatin1String("source"))
            text.source = xml.readElementText();
        else if (xml.name() == QLatin1String("translation")) {
            const QString own = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            text.translation = isEnglish ? text.source : own;
            texts.append(text);
        }
    }
    return texts;
}

/**
 * What the list can say about a picture, preceded by the word for the status, with names or sizes where they belong.
 */
QStringList reasonsIn(const QString &language, const QString &action)
{
    const QList<Text> texts = textsIn(language);
    const auto word = [&texts](const char *status) {
        for (const Text &text : texts)
            if (text.context == QLatin1String("wording") && text.source == QLatin1String(status))
                return text.translation + QStringLiteral(": ");
        qFatal("no word for %s", status);
    };
    QStringList reasons;
    for (const Text &text : texts) {
        if (!contextsOf(action).contains(text.context) || !text.source.at(0).isLower() ||
            text.source.contains(QLatin1String("%3")))
            continue;
        const bool tellsSizes = text.source.contains(QLatin1String("%2"));
        QString reason = text.translation;
        reason.replace(QLatin1String("%1"), tellsSizes ? QStringLiteral("4000×3000") : QStringLiteral("IMG_0042.jpg"));
        reason.replace(QLatin1String("%2"), QStringLiteral("4000×3000"));
        const bool isOfType = text.source.startsWith(QLatin1String("this type"));
        reasons.append(word(isOfType ? "Not Supported" : "Failed") + reason);
    }
    return reasons;
}

/** What the list can say about a picture that will be written, each with one of the remarks about its result. */
QStringList plansIn(const QString &language)
{
    QStringList plans;
    QStringList remarks;
    for (const Text &text : textsIn(language)) {
        if (!text.source.at(0).isLower() && !text.source.startsWith(u'%'))
            continue;
        // The plural form of counts.
        QString own = text.translation.simplified().section(QStringLiteral("%n"), -1);
        own = text.source.contains(QLatin1String("%n")) ? QStringLiteral("12") + own : text.translation;
        own.replace(QLatin1String("%1"), QStringLiteral("4000×3000"));
        if (text.context == QLatin1String("write-plan"))
            plans.append(own);
        if (text.context == QLatin1String("by-recipe"))
            remarks.append(own);
    }
    QStringList all = plans;
    for (const QString &plan : plans)
        for (const QString &remark : remarks)
            all.append(plan + QStringLiteral(", ") + remark);
    return all;
}

} // namespace

/** The columns of the list: what they show, whether their texts can be read, and what is kept of them. */
class TestColumns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_driver = WindowDriver::showing("resize"); }
    void cleanup() { m_driver.reset(); }
    void everyReasonCanBeRead_data();
    void everyReasonCanBeRead();
    void everyPlanCanBeRead_data();
    void everyPlanCanBeRead();
    void theFolderIsShownWherePicturesLieInSeveral();
    void namesKeepTheirRoomBesideAddedColumns_data();
    void namesKeepTheirRoomBesideAddedColumns();
    void shortNamesAreSeenWhole_data();
    void shortNamesAreSeenWhole();
    void headingsAreSeenWhole_data();
    void headingsAreSeenWhole();
    void datesAreSeenWhole_data();
    void datesAreSeenWhole();
    void severalSizesAreSeenWhole();
    void twoFoldersLeaveRoomForNames_data();
    void twoFoldersLeaveRoomForNames();
    void aNewNameGivesNothingToALongerOldOne();
    void threeSizesAreSeenWhole_data();
    void threeSizesAreSeenWhole();
    void longHeadingsTakeTwoLines();
    void whatTheUserDidIsKept();
    void aWrongLayoutIsNoLayout();

private:
    QString path(const QString &name) const { return m_driver->inputFolder() + u'/' + name; }
    void picture(const QString &name);
    void dated(const QString &name);
    QHeaderView &header() { return *m_driver->pictures().horizontalHeader(); }

    std::unique_ptr<WindowDriver> m_driver;
};

void TestColumns::picture(const QString &name)
{
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    QVERIFY(QDir().mkpath(QFileInfo(path(name)).path()));
    QVERIFY(image.save(path(name)));
}

void TestColumns::dated(const QString &name)
{
    QVERIFY(QDir().mkpath(QFileInfo(path(name)).path()));
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(pictures::datedJpeg(QStringLiteral("2026:08:14 10:20:30")));
}

void TestColumns::everyReasonCanBeRead_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("action");
    for (const char *language : {"en", "de", "fr", "nl"})
        for (const char *action : {"resize", "rename", "sort"})
            QTest::addRow("%s %s", language, action) << QString::fromLatin1(language) << QString::fromLatin1(action);
}

void TestColumns::everyReasonCanBeRead()
{
    QFETCH(QString, language);
    QFETCH(QString, action);
    const QStringList reasons = reasonsIn(language, action);
    QVERIFY2(reasons.size() > 20, qPrintable(QString::number(reasons.size())));
    picture(QStringLiteral("a.png"));
    picture(QStringLiteral("b/b.png"));
    m_driver->window().resize(1280, 720);
    m_driver->show(qPrintable(action));
    m_driver->drop({m_driver->inputFolder()});
    QCoreApplication::processEvents();
    window::PictureTable &list = m_driver->pictures();
    QVERIFY(!header().isSectionHidden(PictureModel::Folder)); // the narrowest case
    const int id = list.currentId();
    const QString word =
        language == QLatin1String("de") ? QStringLiteral("Nicht unterstützt: ") : QStringLiteral("Not Supported: ");
    QStringList cut;
    for (const QString &reason : reasons) {
        list.setStatus(id, QStringLiteral("bad"), reason, {});
        if (list.isStatusCut(id))
            cut.append(reason);
    }
    QVERIFY2(cut.isEmpty(), qPrintable(cut.join(u'\n')));
    list.setStatus(id, QStringLiteral("bad"), QStringLiteral("word ").repeated(200), {});
    QVERIFY(list.isStatusCut(id));
}

void TestColumns::everyPlanCanBeRead_data()
{
    QTest::addColumn<QString>("language");
    for (const char *language : {"en", "de", "fr", "nl"})
        QTest::addRow("%s", language) << QString::fromLatin1(language);
}

// The future name of a result is not covered by it.
void TestColumns::everyPlanCanBeRead()
{
    QFETCH(QString, language);
    const QStringList plans = plansIn(language);
    QVERIFY2(plans.size() >= 20, qPrintable(QString::number(plans.size())));
    qputenv("QUORLIN_LANGUAGE", language.toLatin1());
    const auto usual = qScopeGuard([] { qunsetenv("QUORLIN_LANGUAGE"); });
    m_driver->startAgain();
    picture(QStringLiteral("a.png"));
    picture(QStringLiteral("b/b.png"));
    m_driver->window().resize(1280, 720);
    m_driver->show("crop");
    m_driver->drop({m_driver->inputFolder()});
    QCoreApplication::processEvents();
    window::PictureTable &list = m_driver->pictures();
    QVERIFY(!header().isSectionHidden(PictureModel::Folder)); // the narrowest case
    QStringList cut;
    for (const QString &plan : plans) {
        list.setStatus(list.currentId(), QStringLiteral("waiting"), plan, {});
        if (list.isStatusCut(list.currentId()))
            cut.append(plan);
    }
    QVERIFY2(cut.isEmpty(), qPrintable(cut.join(u'\n')));
    list.setStatus(list.currentId(), QStringLiteral("waiting"), QStringLiteral("word ").repeated(60), {});
    QVERIFY(list.isStatusCut(list.currentId()));
}

void TestColumns::theFolderIsShownWherePicturesLieInSeveral()
{
    picture(QStringLiteral("wedding/a.png"));
    picture(QStringLiteral("wedding/day 1/church/b.png"));
    picture(QStringLiteral("alone/c.png"));
    m_driver->drop({path(QStringLiteral("alone/c.png"))});
    QVERIFY(header().isSectionHidden(PictureModel::Folder));
    m_driver->drop({path(QStringLiteral("wedding"))});
    QCOMPARE(m_driver->pictures().count(), 3);
    QVERIFY(!header().isSectionHidden(PictureModel::Folder));
    QCOMPARE(m_driver->cell(0, PictureModel::Folder), QStringLiteral("alone"));
    QCOMPARE(m_driver->cell(1, PictureModel::Folder), QStringLiteral("wedding"));
    QCOMPARE(m_driver->cell(2, PictureModel::Folder), QStringLiteral("wedding/day 1/church"));
    m_driver->pictures().selectRow(1);
    m_driver->trigger("removeAction");
    m_driver->pictures().selectRow(1);
    m_driver->trigger("removeAction");
    QVERIFY(header().isSectionHidden(PictureModel::Folder));
}

void TestColumns::namesKeepTheirRoomBesideAddedColumns_data()
{
    everyPlanCanBeRead_data();
}

void TestColumns::namesKeepTheirRoomBesideAddedColumns()
{
    QFETCH(QString, language);
    qputenv("QUORLIN_LANGUAGE", language.toLatin1());
    const auto usual = qScopeGuard([] { qunsetenv("QUORLIN_LANGUAGE"); });
    m_driver->startAgain();
    picture(QStringLiteral("a.png"));
    m_driver->window().resize(1280, 720);
    m_driver->show("resize");
    m_driver->drop({m_driver->inputFolder()});
    window::PictureTable &list = m_driver->pictures();
    const QScrollBar &sideways = *list.horizontalScrollBar();
    QCoreApplication::processEvents();
    QCOMPARE(sideways.maximum(), 0);
    for (const int added : {1, 2, 4}) {
        list.setPropertyColumns(QStringList{QStringLiteral("title"), QStringLiteral("creator"),
                                            QStringLiteral("copyright"), QStringLiteral("city")}
                                    .mid(0, added));
        QCoreApplication::processEvents();
        for (const auto column : {PictureModel::Name, PictureModel::NewName})
            QVERIFY2(header().sectionSize(column) >= 140, qPrintable(QString::number(header().sectionSize(column))));
        QVERIFY2(header().sectionSize(PictureModel::Status) >= 120,
                 qPrintable(QString::number(header().sectionSize(PictureModel::Status))));
    }
    QVERIFY(sideways.maximum() > 0);
    list.setPropertyColumns({});
    QCoreApplication::processEvents();
    QCOMPARE(sideways.maximum(), 0);
    QCOMPARE(header().length(), list.viewport()->width());
}

void TestColumns::shortNamesAreSeenWhole_data()
{
    everyPlanCanBeRead_data();
}

// The list is narrowest beside the tree of folders.
void TestColumns::shortNamesAreSeenWhole()
{
    QFETCH(QString, language);
    qputenv("QUORLIN_LANGUAGE", language.toLatin1());
    const auto usual = qScopeGuard([] { qunsetenv("QUORLIN_LANGUAGE"); });
    m_driver->startAgain();
    dated(QStringLiteral("IMG_2041.JPG"));
    m_driver->window().resize(1280, 720);
    m_driver->show("sort");
    m_driver->drop({m_driver->inputFolder()});
    window::PictureTable &list = m_driver->pictures();
    const auto isWhole = [&] {
        const int needed = list.fontMetrics().horizontalAdvance(QStringLiteral("IMG_2041.JPG"));
        return header().sectionSize(PictureModel::Name) >= needed + 15; // the space at both sides
    };
    QVERIFY(m_driver->waitFor([&] { return m_driver->cell(0, PictureModel::Status).size() > 1 && isWhole(); }));
    // The title of the tree is whole beside the button that comes with a choice.
    QVERIFY(m_driver->waitFor([&] { // until the tree has the folder
        m_driver->control<window::FolderTree>("sortTree")->setChosen(path(QStringLiteral("2026/2026-08-14")));
        return m_driver->control<QPushButton>("sortShowAll")->isVisible();
    }));
    const auto *title = m_driver->control<QLabel>("sortTreeTitle");
    QVERIFY(m_driver->waitFor([title] { return title->width() >= title->sizeHint().width(); }));
    // A reason that comes later gets the room that it needs.
    const QStringList reasons = reasonsIn(language, QStringLiteral("sort"));
    for (const QString &reason : reasons) {
        list.setStatus(list.currentId(), QStringLiteral("bad"), reason, {});
        QVERIFY2(!list.isStatusCut(list.currentId()), qPrintable(reason));
    }
}

void TestColumns::headingsAreSeenWhole_data()
{
    everyPlanCanBeRead_data();
}

void TestColumns::headingsAreSeenWhole()
{
    QFETCH(QString, language);
    qputenv("QUORLIN_LANGUAGE", language.toLatin1());
    const auto usual = qScopeGuard([] { qunsetenv("QUORLIN_LANGUAGE"); });
    m_driver->startAgain();
    dated(QStringLiteral("IMG_2041.JPG"));
    dated(QStringLiteral("second/IMG_2042.JPG"));
    m_driver->window().resize(1280, 720);
    QStringList cut;
    int seen = 0;
    for (const char *action : {"resize", "crop", "convert", "rename", "sort", "web", "contact", "fields"}) {
        m_driver->show(action);
        if (m_driver->pictures().count() == 0)
            m_driver->drop({m_driver->inputFolder()});
        QVERIFY(m_driver->waitFor([&] { return header().length() == m_driver->pictures().viewport()->width(); }));
        const auto &keyed = dynamic_cast<const window::KeyHeader &>(header());
        for (int column = PictureModel::Name; column < PictureModel::ColumnCount; ++column) {
            const QString title = m_driver->pictures().model()->headerData(column, Qt::Horizontal).toString();
            seen += header().isSectionHidden(column) ? 0 : 1;
            if (!header().isSectionHidden(column) && keyed.isCut(column))
                cut.append(QLatin1String(action) + QStringLiteral(": ") + title);
        }
    }
    QVERIFY2(cut.isEmpty(), qPrintable(cut.join(u'\n')));
    QVERIFY2(seen > 30, qPrintable(QString::number(seen)));
    header().resizeSection(PictureModel::Name, 20); // it can be seen
    QVERIFY(dynamic_cast<const window::KeyHeader &>(header()).isCut(PictureModel::Name));
}

void TestColumns::datesAreSeenWhole_data()
{
    everyPlanCanBeRead_data();
}

// At 1440 x 900, where they are shown unless the user hides them.
void TestColumns::datesAreSeenWhole()
{
    QFETCH(QString, language);
    qputenv("QUORLIN_LANGUAGE", language.toLatin1());
    const auto usual = qScopeGuard([] { qunsetenv("QUORLIN_LANGUAGE"); });
    m_driver->startAgain();
    dated(QStringLiteral("IMG_2041.JPG"));
    m_driver->window().resize(1440, 900);
    m_driver->show("rename");
    m_driver->drop({m_driver->inputFolder()});
    QVERIFY(m_driver->waitFor([&] { return !m_driver->cell(0, PictureModel::Taken).isEmpty(); }));
    QVERIFY(!header().isSectionHidden(PictureModel::Taken));
    const int needed = m_driver->pictures().fontMetrics().horizontalAdvance(m_driver->cell(0, PictureModel::Taken));
    QVERIFY2(header().sectionSize(PictureModel::Taken) >= needed + 15,
             qPrintable(QStringLiteral("%1 in %2").arg(needed).arg(header().sectionSize(PictureModel::Taken))));
}

void TestColumns::twoFoldersLeaveRoomForNames_data()
{
    everyPlanCanBeRead_data();
}

// The column for the folder takes its room from what is shown beside the picture too; no two headings are the same.
void TestColumns::twoFoldersLeaveRoomForNames()
{
    QFETCH(QString, language);
    qputenv("QUORLIN_LANGUAGE", language.toLatin1());
    const auto usual = qScopeGuard([] { qunsetenv("QUORLIN_LANGUAGE"); });
    m_driver->startAgain();
    dated(QStringLiteral("Church/DSC04120.jpg"));
    dated(QStringLiteral("Party/DSC07310.jpg"));
    dated(QStringLiteral("Party/The bride and the groom at the gate of the church, second try.jpg"));
    m_driver->window().resize(1280, 720);
    const int needed = m_driver->pictures().fontMetrics().horizontalAdvance(QStringLiteral("DSC04120.jpg")) + 15;
    for (const char *action : {"resize", "crop", "turn", "background", "convert", "web", "rename", "sort"}) {
        m_driver->show(action);
        if (m_driver->pictures().count() == 0)
            m_driver->drop({m_driver->inputFolder()});
        QVERIFY(m_driver->waitFor([&] { return m_driver->cell(0, PictureModel::Status).size() > 1; }));
        QVERIFY(!header().isSectionHidden(PictureModel::Folder));
        QStringList headings;
        for (int column = PictureModel::Name; column < PictureModel::ColumnCount; ++column)
            if (!header().isSectionHidden(column))
                headings.append(m_driver->pictures().model()->headerData(column, Qt::Horizontal).toString());
        QVERIFY2(QSet<QString>(headings.begin(), headings.end()).size() == headings.size(),
                 qPrintable(QLatin1String(action) + QStringLiteral(": ") + headings.join(u'|')));
        QVERIFY2(m_driver->waitFor([&] { return header().sectionSize(PictureModel::Name) >= needed; }),
                 qPrintable(QStringLiteral("%1: %2 of %3")
                                .arg(QLatin1String(action))
                                .arg(header().sectionSize(PictureModel::Name))
                                .arg(needed)));
    }
}

void TestColumns::aNewNameGivesNothingToALongerOldOne()
{
    dated(QStringLiteral("Bride and groom at the gate, second try, with the dog.jpg"));
    dated(QStringLiteral("Party/DSC07310.jpg"));
    m_driver->window().resize(1280, 720);
    m_driver->show("rename");
    m_driver->drop({m_driver->inputFolder()});
    m_driver->choose("preset", QStringLiteral("=Date and place"));
    const auto newName = [&] { return m_driver->cell(0, PictureModel::NewName); };
    QVERIFY(m_driver->waitFor([&] { return newName().startsWith(QLatin1String("2026-08-14")); }));
    QFont bold = m_driver->pictures().font();
    bold.setWeight(QFont::DemiBold);
    const int needed = QFontMetrics(bold).horizontalAdvance(newName()) + 15;
    QVERIFY2(m_driver->waitFor([&] { return header().sectionSize(PictureModel::NewName) >= needed; }),
             qPrintable(QStringLiteral("%1 of %2").arg(header().sectionSize(PictureModel::NewName)).arg(needed)));
}

void TestColumns::threeSizesAreSeenWhole_data()
{
    everyPlanCanBeRead_data();
}

// Two lines, the first of them with two sizes.
void TestColumns::threeSizesAreSeenWhole()
{
    QFETCH(QString, language);
    qputenv("QUORLIN_LANGUAGE", language.toLatin1());
    const auto usual = qScopeGuard([] { qunsetenv("QUORLIN_LANGUAGE"); });
    m_driver->startAgain();
    const QImage large(2400, 1600, QImage::Format_RGB32);
    QVERIFY(QDir().mkpath(m_driver->inputFolder()));
    QVERIFY(large.save(path(QStringLiteral("Evening ridge above Brelmark.png"))));
    m_driver->window().resize(1280, 720);
    m_driver->show("web");
    m_driver->drop({m_driver->inputFolder()});
    window::PictureTable &list = m_driver->pictures();
    const auto sizes = [&] { return m_driver->cell(0, PictureModel::NewSize); };
    QVERIFY(m_driver->waitFor([&] { return sizes().contains(u','); }));
    const QString line = sizes().section(u',', 0, 1) + u',';
    const auto isWhole = [&] {
        return list.fontMetrics().horizontalAdvance(line) + 15 <= header().sectionSize(PictureModel::NewSize);
    };
    QVERIFY2(m_driver->waitFor(isWhole), qPrintable(sizes()));
}

void TestColumns::severalSizesAreSeenWhole()
{
    picture(QStringLiteral("Evening ridge above Brelmark.png"));
    m_driver->window().resize(1280, 720);
    m_driver->drop({m_driver->inputFolder()});
    window::PictureTable &list = m_driver->pictures();
    const QString sizes = QStringLiteral("640×426, 1280×853, 2400×1600");
    const auto cutAt = [&](const QString &text) {
        return list.fontMetrics().horizontalAdvance(text) + 15 > header().sectionSize(PictureModel::NewSize);
    };
    QVERIFY(m_driver->waitFor([&] { return m_driver->cell(0, PictureModel::Status).size() > 1; }));
    QVERIFY(cutAt(QStringLiteral("640×426, 1280×853,")));
    list.setPlan(list.currentId(), QStringLiteral("001-Evening ridge above Brelmark-large.jpg"), sizes);
    QVERIFY(m_driver->waitFor([&] { return !cutAt(QStringLiteral("640×426, 1280×853,")); }));
    QVERIFY(!list.isStatusCut(list.currentId()));
    QCOMPARE(header().length(), list.viewport()->width());
}

void TestColumns::longHeadingsTakeTwoLines()
{
    qputenv("QUORLIN_LANGUAGE", "fr");
    const auto usual = qScopeGuard([] { qunsetenv("QUORLIN_LANGUAGE"); });
    const int inOneLine = header().sizeHint().height();
    m_driver->startAgain();
    m_driver->show("resize");
    const QString title = m_driver->pictures().model()->headerData(PictureModel::NewSize, Qt::Horizontal).toString();
    QFont bold = header().font();
    bold.setBold(true);
    QVERIFY2(header().sectionSizeHint(PictureModel::NewSize) < QFontMetrics(bold).horizontalAdvance(title),
             qPrintable(title));
    QVERIFY(header().sizeHint().height() >= inOneLine + QFontMetrics(bold).lineSpacing());
}

void TestColumns::whatTheUserDidIsKept()
{
    header().resizeSection(PictureModel::Pixels, 123);
    header().moveSection(header().visualIndex(PictureModel::Bytes), 1);
    header().setSortIndicator(PictureModel::Bytes, Qt::DescendingOrder);
    m_driver->startAgain();
    QCOMPARE(header().visualIndex(PictureModel::Bytes), 1);
    QCOMPARE(header().sectionSize(PictureModel::Pixels), 123);
    QCOMPARE(header().sortIndicatorSection(), int(PictureModel::Bytes));
    QCOMPARE(header().sortIndicatorOrder(), Qt::DescendingOrder);
    m_driver->show("rename"); // it has other columns, in the same order of pictures
    QCOMPARE(header().visualIndex(PictureModel::Bytes), int(PictureModel::Bytes));
    QCOMPARE(header().sortIndicatorSection(), int(PictureModel::Bytes));
    m_driver->show("crop");
    QCOMPARE(header().visualIndex(PictureModel::Bytes), 1);
}

void TestColumns::aWrongLayoutIsNoLayout()
{
    window::PictureTable &list = m_driver->pictures();
    for (const char *text :
         {"", "{", "[]",
          "{\"order\":[1,\"name\",\"name\",\"none\"],\"widths\":{\"name\":-5,\"none\":3,\"size\":1e9}}"}) {
        list.setColumnLayout(QString::fromLatin1(text));
        list.setSorting(QString::fromLatin1(text));
        QCOMPARE(header().visualIndex(PictureModel::Thumbnail), 0);
        QCOMPARE(header().visualIndex(PictureModel::Name), 1);
        QCOMPARE(header().sortIndicatorSection(), -1);
        QVERIFY(header().sectionSize(PictureModel::Name) >= header().minimumSectionSize());
        QVERIFY(header().sectionSize(PictureModel::Bytes) <= 4000);
    }
}

QUORLIN_GUI_TEST(TestColumns)

#include "tst_columns.moc"
