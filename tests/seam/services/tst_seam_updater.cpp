#include "tests/seam/support/ScriptRun.h"

#include "app/network/download.h"
#include "platform/desktop/user_defaults.h"
#include "tests/support/test_program.h"
#include "tests/support/web_server.h"

#include <QTest>

namespace {

const char *const variable = "QUORLIN_UPDATE_HOST";
const QString key = QStringLiteral("UpdateHost");

/** What getAppVersion answers to a running build, or raises, and what it keeps of a failure. */
QString answerTo(int build)
{
    ScriptRun run;
    run.run(
        QStringLiteral("import { cAppUpdater } from 'quorlin'; const u = new cAppUpdater(); report(u.err); "
                       "reportError(() => u.getAppVersion(%1)); report(u.err === null ? 'no error' : typeof u.err);")
            .arg(build));
    return run.error + run.reports.join(u' ');
}

} // namespace

Q_DECLARE_METATYPE(WebServer::Answer)

/** The update check as scripts have it, against a server of this machine. */
class TestSeamUpdater : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void answersByTheVersionFile_data();
    void answersByTheVersionFile();
    void answersNullWithoutAServer_data();
    void answersNullWithoutAServer();
    void findsItsHost_data();
    void findsItsHost();
    void forgetsAnErrorWhenItSucceeds();
    void refusesWrongArguments();
};

void TestSeamUpdater::initTestCase()
{
    for (const char *proxy : {"http_proxy", "HTTP_PROXY", "all_proxy", "ALL_PROXY"})
        qunsetenv(proxy);
    // As usual first: the figures are a promise.
    QCOMPARE(app::usualDownloadLimits().silenceMs, 15'000);
    QCOMPARE(app::usualDownloadLimits().wholeMs, 60'000);
    QCOMPARE(app::usualDownloadLimits().bytes, 4 * 1024 * 1024);
    app::usualDownloadLimits().silenceMs = 1000;
}

void TestSeamUpdater::cleanup()
{
    qunsetenv(variable);
    platform::removeUserDefault(key);
}

void TestSeamUpdater::answersByTheVersionFile_data()
{
    QTest::addColumn<WebServer::Answer>("answer");
    QTest::addColumn<int>("build");
    QTest::addColumn<QString>("outcome");
    const QString none = QStringLiteral("null null \"no error\"");
    const QString failed = QStringLiteral("null null \"string\"");
    const WebServer::Answer file = WebServer::page("3.2;121;Notes;More");
    QTest::newRow("newer") << file << 120 << "null [\"3.2\",\"Notes\",\"More\"] \"no error\"";
    QTest::newRow("the same") << file << 121 << none;
    QTest::newRow("older") << file << 122 << none;
    QTest::newRow("line break") << WebServer::page("3.2;0122abc;Notes;More\n") << 121
                                << "null [\"3.2\",\"Notes\",\"More\\n\"] \"no error\"";
    QTest::newRow("redirected") << WebServer::redirects(2, "3.2;121;Notes;More") << 120
                                << "null [\"3.2\",\"Notes\",\"More\"] \"no error\"";
    const auto tooShort = [](int field) {
        return QStringLiteral("null RangeError: The version file has no field %1: it ends with field %2 \"no error\"")
            .arg(field)
            .arg(field - 1);
    };
    QTest::newRow("empty") << WebServer::page("") << 120 << tooShort(1);
    QTest::newRow("one field") << WebServer::page("3.2") << 120 << tooShort(1);
    QTest::newRow("two fields") << WebServer::page("3.2;121") << 120 << tooShort(2);
    QTest::newRow("three fields") << WebServer::page("3.2;121;Notes") << 120 << tooShort(3);
    QTest::newRow("three fields, the same") << WebServer::page("3.2;121;Notes") << 121 << none;
    QTest::newRow("a page of words") << WebServer::page("<html>Sign in</html>") << 120 << tooShort(1);
    QTest::newRow("a page to sign in") << WebServer::page("<html><style>a{b:c;d:e;f:g}</style>;h;i</html>") << 120
                                       << failed;
    QTest::newRow("a large page") << WebServer::page("3.2;121;Notes;" + QByteArray(1 << 20, 'x') + ";") << 121 << none;
    QTest::newRow("garbage") << WebServer::page(QByteArray::fromHex("89504e470d0a1a0affd8fe00")) << 120 << failed;
    QTest::newRow("not found") << WebServer::page("3.2;121;Notes;More", "404 Not Found") << 120 << failed;
    QTest::newRow("slow") << WebServer::silence() << 120 << failed;
    QTest::newRow("huge") << WebServer::page("3.2;121;Notes;" + QByteArray(8 << 20, 'x')) << 120 << failed;
    QTest::newRow("redirect loop") << WebServer::redirect("/version/Quorlin.txt") << 120 << failed;
    QTest::newRow("failed, below 0") << WebServer::page("", "404 Not Found") << -1 << failed;
}

void TestSeamUpdater::answersByTheVersionFile()
{
    QFETCH(WebServer::Answer, answer);
    QFETCH(int, build);
    const WebServer server(answer);
    qputenv(variable, server.host().toLatin1());
    QTEST(answerTo(build), "outcome");
}

void TestSeamUpdater::answersNullWithoutAServer_data()
{
    QTest::addColumn<QByteArray>("host");
    quint16 closed = 0;
    {
        const WebServer server(WebServer::silence());
        closed = server.port();
    }
    QTest::newRow("closed port") << "http://127.0.0.1:" + QByteArray::number(closed);
    QTest::newRow("none configured") << QByteArray();
    QTest::newRow("no address") << QByteArray("not a host");
    QTest::newRow("a folder") << QByteArray("file:///tmp");
}

void TestSeamUpdater::answersNullWithoutAServer()
{
    QFETCH(QByteArray, host);
    qputenv(variable, host);
    QCOMPARE(answerTo(0), QStringLiteral("null null \"string\""));
}

void TestSeamUpdater::findsItsHost_data()
{
    QTest::addColumn<QString>("environment");
    QTest::addColumn<QString>("setting");
    QTest::newRow("environment") << "%1" << QString();
    QTest::newRow("user's defaults") << QString() << "%1";
    QTest::newRow("environment wins") << "%1"
                                      << "http://127.0.0.1:1";
    QTest::newRow("with a slash") << "%1/" << QString();
}

void TestSeamUpdater::findsItsHost()
{
    QFETCH(QString, environment);
    QFETCH(QString, setting);
    const WebServer server(WebServer::page("3.2;121;Notes;More"));
    qputenv(variable, environment.replace(QStringLiteral("%1"), server.host()).toLatin1());
    if (!setting.isEmpty())
        platform::setUserDefault(key, setting.replace(QStringLiteral("%1"), server.host()));
    QVERIFY(answerTo(120).contains(QStringLiteral("Notes")));
    QVERIFY(server.requests().value(0).startsWith("GET /version/Quorlin.txt HTTP"));
}

void TestSeamUpdater::forgetsAnErrorWhenItSucceeds()
{
    const WebServer server([first = true](QTcpSocket &socket) mutable {
        (first ? WebServer::page("", "404 Not Found") : WebServer::page("3.2;121;Notes;More"))(socket);
        first = false;
    });
    qputenv(variable, server.host().toLatin1());
    ScriptRun run;
    QVERIFY(run.run(QStringLiteral("import { cAppUpdater } from 'quorlin'; const u = new cAppUpdater(); "
                                   "report(u.getAppVersion(1)); report(typeof u.err); report(u.getAppVersion(1)); "
                                   "report(u.err);")));
    QCOMPARE(run.reports.join(u' '), QStringLiteral("null \"string\" [\"3.2\",\"Notes\",\"More\"] null"));
}

void TestSeamUpdater::refusesWrongArguments()
{
    ScriptRun run;
    for (const char *call : {"getAppVersion('120')", "getAppVersion()", "getAppVersion(1.5)", "getAppVersion(null)"}) {
        QVERIFY(run.run(QStringLiteral("import { cAppUpdater } from 'quorlin'; reportError(() => new cAppUpdater().") +
                        QString::fromLatin1(call) + QStringLiteral(");")));
        QVERIFY2(run.reports.value(0).startsWith(QStringLiteral("TypeError")), qPrintable(run.reports.value(0)));
    }
    QVERIFY(run.run(QStringLiteral("import { cAppUpdater } from 'quorlin'; reportError(() => new "
                                   "cAppUpdater().getAppVersion(2147483648));")));
    QVERIFY2(run.reports.value(0).startsWith(QStringLiteral("RangeError")), qPrintable(run.reports.value(0)));
}

QUORLIN_TEST(TestSeamUpdater)
#include "tst_seam_updater.moc"
