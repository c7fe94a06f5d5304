#include "files/planning/move_plan.h"
#include "tests/support/model_file_system.h"
#include "tests/support/test_program.h"

#include <QTest>

using namespace std::chrono_literals;
using namespace files;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

/**
 * "a>b" moves, "a+b" copies, "a=b" links; a following "#" requests a number, "@2" names the leader. Names are those of
 * "/d".
 */
MoveWish wishFrom(QString line)
{
    MoveWish wish;
    if (const qsizetype at = line.indexOf(u'@'); at >= 0) {
        wish.leader = line.mid(at + 1).toInt();
        line.truncate(at);
    }
    wish.isNumbered = line.endsWith(u'#');
    line.remove(u'#');
    for (const auto &[mark, kind] : {std::pair(u'>', MoveKind::Move), {u'+', MoveKind::Copy}, {u'=', MoveKind::Link}})
        if (const qsizetype at = line.indexOf(mark); at >= 0) {
            wish.kind = kind;
            wish.from = QStringLiteral("/d/") + line.left(at);
            const QString to = line.mid(at + 1);
            wish.to = to.startsWith(u'/') ? to : QStringLiteral("/d/") + to;
        }
    return wish;
}

/** "ready", "same" or the code of the refusal, followed by the code and the other path or the assigned number. */
QString wordsFor(const PlannedMove &planned, const MoveWish &wish)
{
    QString words = planned.status == PlanStatus::Same    ? QStringLiteral("same")
                    : planned.status == PlanStatus::Ready ? QStringLiteral("ready")
                                                          : QStringLiteral("refused");
    const QString code = planned.why != MoveProblem::None ? wordOf(planned.why) : wordOf(planned.remark);
    if (!code.isEmpty())
        words += u' ' + code;
    if (!planned.other.isEmpty() && planned.remark != PlanRemark::Numbered)
        words += u' ' + planned.other;
    if (planned.status == PlanStatus::Ready && planned.to != wish.to)
        words += u' ' + planned.to;
    return words;
}

} // namespace

/** The outcome of requests, before anything moves. */
class TestMovePlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void judgesEveryWish_data();
    void judgesEveryWish();
    void judgesWishesTogether_data();
    void judgesWishesTogether() { judgesEveryWish(); }
    void refusesNamesThatAreTooLong();
    void planningTouchesNothing();
    void plansTenThousandWishesInOneGo();
};

void TestMovePlan::judgesEveryWish_data()
{
    QTest::addColumn<QStringList>("wishes");
    QTest::addColumn<QStringList>("answers");
    const auto one = [](const char *name, const char *wish, const char *answer) {
        QTest::newRow(name) << QStringList{text(wish)} << QStringList{text(answer)};
    };
    one("a new name", "a.jpg>x.jpg", "ready");
    one("its own name", "a.jpg>a.jpg", "same");
    one("a missing folder", "a.jpg>new/er/a.jpg", "ready");
    one("gone", "missing>x", "refused gone");
    one("in a folder that is not there", "none/a>x", "refused gone");
    one("no name", "a.jpg>", "refused empty");
    one("blanks only", "a.jpg>  ", "refused empty");
    one("a dot", "a.jpg>.", "refused illegal");
    one("two dots", "a.jpg>..", "refused illegal");
    one("up and away", "a.jpg>../x", "refused illegal");
    one("a folder without a name", "a.jpg>x//y", "refused empty");
    one("not absolute", "a.jpg>/", "refused empty");
    one("taken", "a.jpg>b.jpg", "refused taken /d/b.jpg");
    one("taken in case", "a.jpg>B.jpg", "refused case /d/b.jpg");
    one("taken in accents", "a.jpg>e\u0301.jpg", "refused case /d/\u00e9.jpg");
    one("numbered", "a.jpg>b.jpg#", "ready numbered /d/b (2).jpg");
    one("numbered in case", "a.jpg>B.jpg#", "ready numbered /d/B (2).jpg");
    one("numbered past what is there", "b.jpg>a.jpg#", "ready numbered /d/a (3).jpg");
    one("a folder numbered", "folder>b.jpg#", "ready numbered /d/b.jpg (2)");
    one("number gives its own name", "a (2).jpg>a.jpg#", "same");
    one("its case only", "a.jpg>A.JPG", "ready case");
    one("its accents only", "\u00e9.jpg>e\u0301.jpg", "ready case");
    one("another disk", "a.jpg>/other/a.jpg", "ready disk");
    one("copied to another disk", "a.jpg+/other/a.jpg", "ready");
    one("a file in the way of a folder", "a.jpg>b.jpg/x", "refused taken /d/b.jpg");
    one("a folder that is there in another case", "a.jpg>Folder/x", "refused case /d/folder");
    one("into itself", "folder>folder/x", "refused inside");
    one("copied into itself", "folder+folder/sub/x", "refused inside");
    one("a link to a folder into it", "folder=folder/x", "ready");
    one("out of a locked folder", "locked/l>x", "refused locked /d/locked");
    one("into a locked folder", "a.jpg>locked/x", "refused locked /d/locked");
    one("a copy out of a locked folder", "locked/l+x", "ready");
    one("a link is moved itself", "link>x", "ready");
    one("a link that leads nowhere is in the way", "a.jpg>link", "refused taken /d/link");
}

/** Plans whose requests affect one another. */
void TestMovePlan::judgesWishesTogether_data()
{
    QTest::addColumn<QStringList>("wishes");
    QTest::addColumn<QStringList>("answers");
    const auto row = [](const char *name, const QStringList &wishes, const QStringList &answers) {
        QTest::newRow(name) << wishes << answers;
    };
    row("twice", {text("a.jpg>x"), text("b.jpg>x")}, {text("ready"), text("refused twice /d/a.jpg")});
    row("twice in case", {text("a.jpg>x"), text("b.jpg>X")}, {text("ready"), text("refused case /d/a.jpg")});
    row("twice, numbered", {text("a.jpg>x.y#"), text("b.jpg>x.y#")},
        {text("ready"), text("ready numbered /d/x (2).y")});
    row("moved twice", {text("a.jpg>x"), text("a.jpg>y")}, {text("ready"), text("refused twice /d/a.jpg")});
    row("copied twice", {text("a.jpg+x"), text("a.jpg+y")}, {text("ready"), text("ready")});
    row("a swap", {text("a.jpg>b.jpg"), text("b.jpg>a.jpg")},
        {text("ready aside /d/b.jpg"), text("ready aside /d/a.jpg")});
    row("a circle", {text("a.jpg>b.jpg"), text("b.jpg>c"), text("c>a.jpg")},
        {text("ready aside /d/b.jpg"), text("ready aside /d/c"), text("ready aside /d/a.jpg")});
    row("a chain", {text("a.jpg>b.jpg"), text("b.jpg>c"), text("c>x")},
        {text("ready aside /d/b.jpg"), text("ready aside /d/c"), text("ready")});
    row("a chain that ends at a wall", {text("a.jpg>b.jpg"), text("b.jpg>c"), text("c>folder")},
        {text("refused taken /d/b.jpg"), text("refused taken /d/c"), text("refused taken /d/folder")});
    row("a chain that ends at a wall and numbers", {text("a.jpg>b.jpg#"), text("b.jpg>c"), text("c>folder")},
        {text("ready numbered /d/b (2).jpg"), text("refused taken /d/c"), text("refused taken /d/folder")});
    row("a copy leaves its place taken", {text("a.jpg>b.jpg"), text("b.jpg+x")},
        {text("refused taken /d/b.jpg"), text("ready")});
    row("a swap in case", {text("a.jpg>B.jpg"), text("b.jpg>A.jpg")},
        {text("ready aside /d/b.jpg"), text("ready aside /d/a.jpg")});
    row("a folder and what is in it", {text("folder>x"), text("folder/in>folder/y")}, {text("ready"), text("ready")});
    row("into a folder that is renamed", {text("folder>x"), text("a.jpg>folder/a")}, {text("ready"), text("ready")});
    row("into the new name of a folder", {text("folder>x"), text("a.jpg>x/a")},
        {text("refused taken /d/x"), text("ready")});
    row("folders into each other", {text("folder>two/x"), text("two>folder/y")},
        {text("ready"), text("refused inside")});
    row("two missing folders in two cases", {text("a.jpg>New/a"), text("b.jpg>new/b")},
        {text("ready"), text("refused case /d/New")});
    row("a companion", {text("a.jpg>x.jpg"), text("c>x.xmp@0")}, {text("ready"), text("ready")});
    row("a companion of one that is refused", {text("a.jpg>b.jpg"), text("c>x.xmp@0")},
        {text("refused taken /d/b.jpg"), text("refused leader /d/a.jpg")});
    row("a companion is numbered along", {text("a.jpg>b.jpg#"), text("c>b.xmp#@0")},
        {text("ready numbered /d/b (2).jpg"), text("ready numbered /d/b (2).xmp")});
    row("a companion before its leader", {text("c>b.xmp#@1"), text("a.jpg>b.jpg#")},
        {text("ready numbered /d/b (2).xmp"), text("ready numbered /d/b (2).jpg")});
    row("leaders in a ring", {text("a.jpg>x@1"), text("b.jpg>y@0")}, {text("ready"), text("ready")});
    row("a leader that is not there", {text("a.jpg>x@7")}, {text("ready")});
}

void TestMovePlan::judgesEveryWish()
{
    QFETCH(QStringList, wishes);
    QFETCH(QStringList, answers);
    ModelFileSystem disk;
    for (const char *name : {"a.jpg", "a (2).jpg", "b.jpg", "c", "\u00e9.jpg", "folder/in", "two/in", "locked/l"})
        disk.addFile(QStringLiteral("/d/") + text(name), name);
    disk.addFolder(QStringLiteral("/d/folder/sub"));
    disk.addLink(QStringLiteral("/d/link"), QStringLiteral("nowhere"));
    disk.lockedFolders.insert(QStringLiteral("/d/locked"));
    std::vector<MoveWish> wanted;
    for (const QString &wish : wishes)
        wanted.push_back(wishFrom(wish));
    QStringList words;
    const auto plan = planMoves(wanted, disk);
    for (size_t i = 0; i < plan.size(); ++i)
        words.append(wordsFor(plan[i], wanted[i]));
    QCOMPARE(words, answers);
    words.clear();
    MovePlanning slices(wanted, disk);
    while (!slices.workFor(0ms))
        continue;
    for (size_t i = 0; i < wanted.size(); ++i)
        words.append(wordsFor(slices.plan()[i], wanted[i]));
    QCOMPARE(words, answers);
}

void TestMovePlan::refusesNamesThatAreTooLong()
{
    ModelFileSystem disk;
    disk.addFile(QStringLiteral("/d/a"), "a");
    disk.addFile(QStringLiteral("/d/") + QString(255, u'b'), "b");
    const auto codeFor = [&](const QString &name, bool isNumbered = false) {
        return planMoves({{MoveKind::Move, QStringLiteral("/d/a"), QStringLiteral("/d/") + name, isNumbered, -1}}, disk)
            .front()
            .why;
    };
    QCOMPARE(codeFor(QString(255, u'x')), MoveProblem::None);
    QCOMPARE(codeFor(QString(256, u'x')), MoveProblem::TooLong);
    QCOMPARE(codeFor(QString(127, QChar(0xe9)) + u'x'), MoveProblem::None);
    QCOMPARE(codeFor(QString(128, QChar(0xe9))), MoveProblem::TooLong);
    QCOMPARE(codeFor(QString(255, u'b'), true), MoveProblem::TooLong);
    QCOMPARE(codeFor(QStringLiteral("a\0b").left(1) + QChar(u'\0') + u'b'), MoveProblem::Illegal);
    QCOMPARE(codeFor(QString(QChar(0xd800))), MoveProblem::Illegal);
    QCOMPARE(codeFor((QString(250, u'x') + u'/').repeated(17) + u'x'), MoveProblem::TooLong);
}

void TestMovePlan::planningTouchesNothing()
{
    ModelFileSystem disk;
    Fuse fuse;
    disk.fuse = &fuse;
    disk.addFile(QStringLiteral("/d/a"), "a");
    const auto before = disk.everything();
    planMoves({wishFrom(QStringLiteral("a>new/b"))}, disk);
    QVERIFY(disk.everything() == before);
    QCOMPARE(fuse.burnt(), 0);
}

void TestMovePlan::plansTenThousandWishesInOneGo()
{
    class Counted : public ModelFileSystem
    {
    public:
        mutable int listings = 0;
        std::optional<std::vector<platform::FolderEntry>> list(const QString &folder) const override
        {
            ++listings;
            return ModelFileSystem::list(folder);
        }
    };
    constexpr int count = 10'000;
    Counted disk;
    std::vector<MoveWish> wishes;
    for (int i = 0; i < count; ++i) {
        disk.addFile(QStringLiteral("/d/%1").arg(i), "x");
        wishes.push_back(
            {MoveKind::Move, QStringLiteral("/d/%1").arg(i), QStringLiteral("/d/%1").arg(i + 1), false, -1});
    }
    // All refused in turn when the last one runs into a wall, which must not take a pass for each.
    disk.addFile(QStringLiteral("/d/%1").arg(count), "wall");
    for (const PlannedMove &planned : planMoves(wishes, disk))
        QCOMPARE(planned.why, MoveProblem::Taken);
    QCOMPARE(disk.listings, 1);
    MovePlanning slices(wishes, disk);
    int sliceCount = 1;
    while (!slices.workFor(0ms))
        ++sliceCount;
    QVERIFY2(sliceCount > 4 * count, qPrintable(QString::number(sliceCount))); // no part of it is long
    for (const PlannedMove &planned : slices.plan())
        QCOMPARE(planned.why, MoveProblem::Taken);
    disk.drop(QStringLiteral("/d/%1").arg(count));
    int asides = 0;
    for (const PlannedMove &planned : planMoves(wishes, disk))
        asides += planned.remark == PlanRemark::Aside;
    QCOMPARE(asides, count - 1);
}

QUORLIN_TEST(TestMovePlan)
#include "tst_move_plan.moc"
