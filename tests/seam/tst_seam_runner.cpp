#include "tests/support/test_program.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

struct Run
{
    int status = -1;
    QString output;
    QString errors;
};

/** The text of all settings files of a home. */
QString settingsBelow(const QString &home)
{
    QString all;
    QDirIterator walk(home + QStringLiteral("/config"), QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        QFile file(walk.next());
        if (file.open(QIODevice::ReadOnly))
            all += QString::fromUtf8(file.readAll());
    }
    return all;
}

} // namespace

/** quorlin-script as a program: arguments, output, exit status. */
class TestSeamRunner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsWithTheStatusOfTheScript_data();
    void endsWithTheStatusOfTheScript();
    void writesToTheRightStream();
    void writesDespiteTheLoggingRulesOfTheUser();
    void handsOverItsArguments();
    void refusesABadCommandLine_data();
    void refusesABadCommandLine();
    void needsNoDisplay();
    void aWindowSaysNothingOfItsServices();
    void importsFromTheFolderOfTheScript();
    void runsEveryModuleThereIs();

private:
    Run run(const QStringList &arguments, const QStringList &environment = {}) const;
    QString script(const QString &text, const QString &name = QStringLiteral("script.js")) const;

    QTemporaryDir m_folder;
};

QString TestSeamRunner::script(const QString &text, const QString &name) const
{
    QFile file(m_folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
        qFatal("The script cannot be written");
    return file.fileName();
}

Run TestSeamRunner::run(const QStringList &arguments, const QStringList &environment) const
{
    QProcess process;
    process.setWorkingDirectory(m_folder.path());
    process.setEnvironment(QProcess::systemEnvironment() + environment);
    process.start(QStringLiteral(QUORLIN_SCRIPT), arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

void TestSeamRunner::endsWithTheStatusOfTheScript_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("errors");
    const auto row = [](const char *text, int status, const char *output, const char *errors) {
        QTest::newRow(text) << QString::fromUtf8(text) << status << QString::fromUtf8(output)
                            << QString::fromUtf8(errors);
    };
    row("print('done');", 0, "done\n", "");
    row("", 0, "", "");
    row("print('a'); quit(7); print('b');", 7, "a\n", "");
    row("try { quit(3); } finally { print('too late'); }", 3, "", "");
    row("quit();", 0, "", "");
    row("Promise.resolve().then(() => { print('then'); }).then(() => quit(4)); print('first');", 4, "first\nthen\n",
        "");
    row("print('a');\nthrow new RangeError('far');", 1, "a\n", "FILE:2: RangeError: far\n");
    row("\n\nnowhere;", 1, "", "FILE:3: ReferenceError: nowhere is not defined\n");
    row("let 3;", 1, "", "FILE:1: SyntaxError: Expected token `identifier'\n");
    row("Promise.resolve().then(() => { print('still'); });\nthrow 'x';", 1, "still\n", "FILE:2: Error: x\n");
    row("print('a');\nPromise.reject(new RangeError('far'));\nprint('b');", 1, "a\nb\n", "FILE:2: RangeError: far\n");
    row("Promise.resolve().then(() => {\n  nowhere; });", 1, "", "FILE:2: ReferenceError: nowhere is not defined\n");
    row("\nPromise.reject('x');", 1, "", "FILE:2: Error: x\n");
    row("Promise.reject(1).catch(() => { print('caught'); });", 0, "caught\n", "");
    row("const p = Promise.reject(1); Promise.resolve().then(() => {}).then(() => p.catch(() => { print('late'); }));",
        0, "late\n", "");
    row("quit('1');", 1, "", "FILE:1: TypeError: Expected a whole number for code but received \"1\"\n");
    row("quit(256);", 1, "", "FILE:1: RangeError: Expected a whole number from 0 to 255 for code but received 256\n");
}

void TestSeamRunner::endsWithTheStatusOfTheScript()
{
    QFETCH(QString, text);
    QFETCH(int, status);
    QFETCH(QString, output);
    QFETCH(QString, errors);
    const QString file = script(text);
    const Run result = run({file});
    QCOMPARE(result.errors, errors.replace(QStringLiteral("FILE"), file));
    QCOMPARE(result.output, output);
    QCOMPARE(result.status, status);
}

void TestSeamRunner::writesToTheRightStream()
{
    const Run result = run({script(QStringLiteral("print('é', 1, null, true); print(); console.error('wrong %s', 2); "
                                                  "console.log('log'); console.warn('careful');"))});
    QCOMPARE(result.output, QStringLiteral("é 1 null true\n\nlog\n"));
    QCOMPARE(result.errors, QStringLiteral("wrong %s 2\ncareful\n"));
}

void TestSeamRunner::writesDespiteTheLoggingRulesOfTheUser()
{
    const QString file = script(QStringLiteral("print('out'); console.error('err');"));
    const Run result =
        run({file}, {QStringLiteral("QT_LOGGING_RULES=*=false"), QStringLiteral("QT_MESSAGE_PATTERN=x")});
    QCOMPARE(result.output, QStringLiteral("out\n"));
    QCOMPARE(result.errors, QStringLiteral("err\n"));
}

void TestSeamRunner::handsOverItsArguments()
{
    const QString file =
        script(QStringLiteral("print(JSON.stringify(scriptArguments), Object.isFrozen(scriptArguments));"));
    QCOMPARE(run({file}).output, QStringLiteral("[] true\n"));
    // Qt would take some of these for its own.
    const Run result = run({file, QStringLiteral("a b"), QStringLiteral("-platform"), QStringLiteral("é"), QString()});
    QCOMPARE(result.output, QStringLiteral("[\"a b\",\"-platform\",\"é\",\"\"] true\n"));
}

void TestSeamRunner::refusesABadCommandLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("nothing") << QStringList();
    QTest::newRow("option") << QStringList{QStringLiteral("--nope")};
    QTest::newRow("missing file") << QStringList{QStringLiteral("missing.js")};
    QTest::newRow("folder") << QStringList{QStringLiteral(".")};
}

void TestSeamRunner::refusesABadCommandLine()
{
    QFETCH(QStringList, arguments);
    const Run result = run(arguments);
    QCOMPARE(result.status, 2);
    QVERIFY(result.output.isEmpty());
    QVERIFY(!result.errors.isEmpty());
}

void TestSeamRunner::needsNoDisplay()
{
    const QString file = script(QStringLiteral("print('no display');"));
    const QStringList nothing = {QStringLiteral("QT_QPA_PLATFORM="), QStringLiteral("DISPLAY="),
                                 QStringLiteral("WAYLAND_DISPLAY=")};
    const Run result = run({file}, nothing);
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.output, QStringLiteral("no display\n"));
    QCOMPARE(result.status, 0);
    const Run dead = run({file}, nothing + QStringList{QStringLiteral("DISPLAY=:65000")});
    QCOMPARE(dead.output, QStringLiteral("no display\n"));
    QCOMPARE(dead.status, 0);
    // A session that is over leaves its variable behind.
    const Run stale = run({file}, nothing + QStringList{QStringLiteral("WAYLAND_DISPLAY=wayland-77"),
                                                        QStringLiteral("XDG_RUNTIME_DIR=") + m_folder.path()});
    QCOMPARE(stale.errors, QString());
    QCOMPARE(stale.output, QStringLiteral("no display\n"));
    QCOMPARE(stale.status, 0);
}

void TestSeamRunner::aWindowSaysNothingOfItsServices()
{
    const QString home = m_folder.filePath(QStringLiteral("home"));
    QVERIFY(QDir().mkpath(home));
    QVERIFY(QFile::setPermissions(home, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QProcess process;
    process.setEnvironment(QProcess::systemEnvironment() +
                           QStringList{QStringLiteral("QT_QPA_PLATFORM=offscreen"), QStringLiteral("HOME=") + home,
                                       QStringLiteral("XDG_CONFIG_HOME=") + home + QStringLiteral("/config"),
                                       QStringLiteral("XDG_DATA_HOME=") + home + QStringLiteral("/data"),
                                       QStringLiteral("XDG_RUNTIME_DIR=") + home,
                                       QStringLiteral("QUORLIN_INTERFACE=" QUORLIN_INTERFACE_FOLDER)});
    process.start(QStringLiteral(QUORLIN_PROGRAM), {});
    QVERIFY(process.waitForStarted());
    // The version word is written when the window is made, at which point its views have logged that they are awake.
    QString settings;
    QTRY_VERIFY_WITH_TIMEOUT((settings = settingsBelow(home)).contains(QStringLiteral("MOS")), 20000);
    QTest::qWait(500);
    process.terminate();
    QVERIFY(process.waitForFinished());
    QCOMPARE(QString::fromUtf8(process.readAllStandardError()), QString());
    QCOMPARE(QString::fromUtf8(process.readAllStandardOutput()), QString());
    QVERIFY2(settings.contains(QStringLiteral("109+")), qPrintable(settings));
}

void TestSeamRunner::importsFromTheFolderOfTheScript()
{
    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("lib")));
    script(QStringLiteral("export const name = 'lib';\nexport const fail = () => { throw new Error('lib'); };"),
           QStringLiteral("lib/one.js"));
    script(QStringLiteral("import { name, fail } from './lib/one.js'; print(name); fail();"),
           QStringLiteral("root.js"));
    const Run result = run({QStringLiteral("root.js")}); // relative to the current folder
    QCOMPARE(result.output, QStringLiteral("lib\n"));
    QCOMPARE(result.errors, m_folder.filePath(QStringLiteral("lib/one.js")) + QStringLiteral(":2: Error: lib\n"));
    QCOMPARE(result.status, 1);
}

void TestSeamRunner::runsEveryModuleThereIs()
{
    const Run result = run(
        {script(QStringLiteral("import { ZtFFullScreen, mainWindowClass, Picture } from 'quorlin';"
                               "import { TextField } from 'quorlin/controls'; import { panels } from 'quorlin/panels';"
                               "import { defaults } from 'quorlin/defaults';"
                               "new mainWindowClass().windowDidLoad(); panels.cancel(); defaults.set('a', 1);"
                               "const w = new ZtFFullScreen(); w.toggleFullscreen(); w.toggleFullscreen();"
                               "print(w.fullscreenState, new TextField({stringValue: 'x'}).stringValue, "
                               "defaults.get('a'), typeof Picture.open);"))});
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.output, QStringLiteral("0 x 1 function\n"));
}

QUORLIN_TEST(TestSeamRunner)
#include "tst_seam_runner.moc"
