#include "tests/support/test_program.h"

#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

/** Every operation with values of every wrong kind: none crashes, hangs, or answers what no operation answers. */
class TestSeamWrongValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areAnsweredByTheContract_data();
    void areAnsweredByTheContract();
    void namesThatAreNoPathsAreAnswered_data();
    void namesThatAreNoPathsAreAnswered();
};

namespace {

/** No browser and no file manager is to open. */
QStringList environmentIn(const QString &home)
{
    return {QStringLiteral("QT_QPA_PLATFORM=offscreen"),
            QStringLiteral("HOME=") + home,
            QStringLiteral("PATH=") + home + QStringLiteral("/no-programs"),
            QStringLiteral("XDG_RUNTIME_DIR=") + home,
            QStringLiteral("LC_ALL=C.UTF-8"),
            QStringLiteral("ASAN_OPTIONS=") + qEnvironmentVariable("ASAN_OPTIONS"),
            QStringLiteral("LSAN_OPTIONS=") + qEnvironmentVariable("LSAN_OPTIONS")};
}

} // namespace

void TestSeamWrongValues::areAnsweredByTheContract_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("how");
    const QString services = QStringLiteral("wrong-values.js");
    const QString desks = QStringLiteral("wrong-desk-values.js");
    QTest::newRow("services") << services << QStringLiteral("one");
    if (!tests::isSlowRun())
        return;
    QTest::newRow("desks") << desks << QStringLiteral("one");
    QTest::newRow("services, two at a time") << services << QStringLiteral("pairs");
    QTest::newRow("desks, more at a time") << desks << QStringLiteral("pairs");
}

void TestSeamWrongValues::areAnsweredByTheContract()
{
    QFETCH(QString, script);
    QFETCH(QString, how);
    QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("home/no-programs")) &&
            QDir(folder.path()).mkpath(QStringLiteral("probe")));
    QImage picture(20, 10, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(picture.save(folder.filePath(QStringLiteral("p.png"))));
    const QString home = folder.filePath(QStringLiteral("home"));
    QProcess process;
    process.setWorkingDirectory(home);
    process.setEnvironment(environmentIn(home));
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(QStringLiteral(QUORLIN_SCRIPT),
                  {QStringLiteral(QUORLIN_WRONG_VALUES "/") + script, folder.path(), how});
    constexpr int longestMs = 280'000;
    QVERIFY2(process.waitForFinished(longestMs), "it hangs");
    const QString output = QString::fromUtf8(process.readAllStandardOutput());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QVERIFY2(output.contains(QRegularExpression(QStringLiteral("^0 faults in \\d{4,} calls"))),
             qPrintable(output.left(4000)));
}

void TestSeamWrongValues::namesThatAreNoPathsAreAnswered_data()
{
    QTest::addColumn<bool>("isGone");
    QTest::newRow("in a working folder") << false;
    QTest::newRow("in a working folder that somebody has removed") << true;
}

/** Such a name has no parents, or is not found at any of them: whoever climbs to them comes to an end. */
void TestSeamWrongValues::namesThatAreNoPathsAreAnswered()
{
    QFETCH(bool, isGone);
    QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("home/no-programs")) &&
            QDir(folder.path()).mkpath(QStringLiteral("work")));
    QProcess process;
    process.setWorkingDirectory(folder.filePath(QStringLiteral("work")));
    process.setEnvironment(environmentIn(folder.filePath(QStringLiteral("home"))));
    process.setStandardErrorFile(QProcess::nullDevice());
    // The shell has entered it by then.
    const QString remove = isGone ? QStringLiteral("/bin/rmdir \"$PWD\" && ") : QString();
    process.start(QStringLiteral("/bin/sh"),
                  {QStringLiteral("-c"), remove + QStringLiteral("exec \"$0\" \"$1\""), QStringLiteral(QUORLIN_SCRIPT),
                   QStringLiteral(QUORLIN_WRONG_VALUES "/names-of-nothing.js")});
    const bool hasEnded = process.waitForFinished(120'000);
    const QString output = QString::fromUtf8(process.readAllStandardOutput());
    QVERIFY2(hasEnded && process.exitStatus() == QProcess::NormalExit, qPrintable(output.right(4000)));
    QVERIFY2(output.contains(QRegularExpression(QStringLiteral("\n0 faults in \\d{4,} calls"))),
             qPrintable(output.right(4000)));
    // A name that ends early is not the name of another file.
    QDirIterator found(folder.path(), {QStringLiteral("zero*")}, QDir::AllEntries | QDir::Hidden | QDir::System,
                       QDirIterator::Subdirectories);
    const QString made = found.hasNext() ? found.next() : QString();
    QVERIFY2(made.isEmpty(), qPrintable(made));
}

QUORLIN_TEST(TestSeamWrongValues)
#include "tst_seam_wrong_values.moc"
