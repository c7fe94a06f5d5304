#include "platform/desktop/tags.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"

#include <QTest>

#include <sys/xattr.h>

/** Tags of files, as file managers keep them. */
class TestTags : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsThemSeparatedByCommas_data();
    void keepsThemSeparatedByCommas();
    void takesThemAway();
    void failsWhereNothingIsThere();

private:
    ScratchFolder m_folder;
};

void TestTags::keepsThemSeparatedByCommas_data()
{
    QTest::addColumn<QStringList>("tags");
    QTest::addColumn<QByteArray>("attribute");
    const auto row = [](const char *tags, const QByteArray &attribute) {
        QTest::newRow(tags) << QString::fromUtf8(tags).split(u'|') << attribute;
    };
    row("red", "red");
    row("red|holiday photos", "red,holiday photos");
    row("Größe|写真", "Größe,写真");
    row(" red | |blue", "red,blue");
    row("red,blue|green", "red,blue,green");
    row("red|red", "red");
}

void TestTags::keepsThemSeparatedByCommas()
{
    QFETCH(QStringList, tags);
    QFETCH(QByteArray, attribute);
    QVERIFY(m_folder.write("a.png", "a"));
    QVERIFY(platform::setTags(m_folder.path("a.png"), tags));
    char value[1000];
    const ssize_t size =
        ::getxattr(QFile::encodeName(m_folder.path("a.png")).constData(), "user.xdg.tags", value, sizeof value);
    QCOMPARE(QByteArray(value, size), attribute);
    QCOMPARE(platform::tagsOf(m_folder.path("a.png")).join(u',').toUtf8(), attribute);
    QCOMPARE(m_folder.read("a.png"), QByteArray("a"));
}

void TestTags::takesThemAway()
{
    QVERIFY(m_folder.write("b.png", "b"));
    QVERIFY(platform::setTags(m_folder.path("b.png"), {}));
    QVERIFY(platform::setTags(m_folder.path("b.png"), {QStringLiteral("red")}));
    QVERIFY(platform::setTags(m_folder.path("b.png"), {QStringLiteral(" ")}));
    QCOMPARE(platform::tagsOf(m_folder.path("b.png")), QStringList());
}

void TestTags::failsWhereNothingIsThere()
{
    const auto set = platform::setTags(m_folder.path("missing"), {QStringLiteral("red")});
    QVERIFY(!set);
    QCOMPARE(set.error().code, platform::ErrorCode::WriteFailed);
    QVERIFY(!platform::setTags(m_folder.path("missing"), {}));
    QCOMPARE(platform::tagsOf(m_folder.path("missing")), QStringList());
}

QUORLIN_TEST(TestTags)
#include "tst_tags.moc"
