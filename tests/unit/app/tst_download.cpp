#include "app/network/download.h"

#include "tests/support/test_program.h"
#include "tests/support/web_server.h"

#include <QElapsedTimer>
#include <QTest>

namespace {

/** With the head of the page, less than is allowed; and more. */
const QByteArray allowed = QByteArray(19'900, 'x');
const app::DownloadLimits limits = {.silenceMs = 700, .wholeMs = 1500, .bytes = 20'000};
const QString path = QStringLiteral("/version/Quorlin.txt");

/** The text, or "failed" if the sentence says that, which address, and why. */
QString outcomeOf(const QUrl &address)
{
    const auto text = app::downloadedText(address, limits);
    if (text)
        return text->isNull() ? QStringLiteral("null") : *text;
    const QString sentence = text.error().message;
    const QString start = QStringLiteral("Cannot download ") + address.toDisplayString() + QStringLiteral(": ");
    return sentence.startsWith(start) && sentence.size() > start.size() ? QStringLiteral("failed") : sentence;
}

} // namespace

Q_DECLARE_METATYPE(WebServer::Answer)

/** Small texts from a server that may do anything. */
class TestDownload : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { init(); }
    void answersTheTextOrFails_data();
    void answersTheTextOrFails();
    void asksOnceAndPolitely();
    void failsAtOnceWhereNobodyListens();
    void waitsNoLongerThanItsLimit_data();
    void waitsNoLongerThanItsLimit();
    void takesNoOtherAddresses_data();
    void takesNoOtherAddresses();
    void staysUsableAfterAFailure();
    void asksTheProxyOfTheEnvironment();
    void handlesNoEventMeanwhile();
    void answersInTheBackground();
};

void TestDownload::init()
{
    for (const char *variable : {"http_proxy", "HTTP_PROXY", "all_proxy", "ALL_PROXY", "no_proxy", "NO_PROXY"})
        qunsetenv(variable);
}

void TestDownload::answersTheTextOrFails_data()
{
    QTest::addColumn<WebServer::Answer>("answer");
    QTest::addColumn<QString>("outcome");
    const QString failed = QStringLiteral("failed");
    QTest::newRow("text") << WebServer::page("3.2;121;é\n") << QStringLiteral("3.2;121;é\n");
    QTest::newRow("nothing") << WebServer::page("") << QString();
    QTest::newRow("as much as is allowed") << WebServer::page(allowed) << QString::fromLatin1(allowed);
    QTest::newRow("more") << WebServer::page(allowed + QByteArray(200, 'x')) << failed;
    QTest::newRow("more in the head") << WebServer::page("x", "200 OK", "X: " + allowed + allowed + "\r\n") << failed;
    QTest::newRow("endless head") << WebServer::endlessHead(QByteArray("X: ") + QByteArray(1 << 20, 'x'), 0) << failed;
    QTest::newRow("in chunks") << WebServer::Answer([](QTcpSocket &socket) {
        socket.write("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n4\r\n3.2;\r\n5;x=y\r\n121;a\r\n0\r\n\r\n");
    }) << QStringLiteral("3.2;121;a");
    QTest::newRow("without a length") << WebServer::Answer([](QTcpSocket &socket) {
        socket.write("HTTP/1.1 200 OK\r\n\r\n3.2;121;a");
        socket.disconnectFromHost();
    }) << QStringLiteral("3.2;121;a");
    QTest::newRow("announced before") << WebServer::Answer([](QTcpSocket &socket) {
        socket.write("HTTP/1.1 103 Early Hints\r\n\r\nHTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\nab");
    }) << QStringLiteral("ab");
    QTest::newRow("huge") << WebServer::page(QByteArray(50 << 20, 'x')) << failed;
    QTest::newRow("endless") << WebServer::endless(QByteArray(1 << 20, 'x'), 0) << failed;
    QTest::newRow("not UTF-8") << WebServer::page("3.2;121;\xff;x") << failed;
    QTest::newRow("not found") << WebServer::page("3.2;121;a;b", "404 Not Found") << failed;
    QTest::newRow("broken") << WebServer::page("3.2;121;a;b", "500 Internal Server Error") << failed;
    QTest::newRow("asks who I am") << WebServer::page("", "401 Unauthorized", "WWW-Authenticate: Basic realm=\"x\"\r\n")
                                   << failed;
    QTest::newRow("one redirect") << WebServer::redirects(1, "there") << QStringLiteral("there");
    QTest::newRow("as many redirects as are allowed") << WebServer::redirects(4, "there") << QStringLiteral("there");
    QTest::newRow("one redirect more") << WebServer::redirects(5, "there") << failed;
    QTest::newRow("redirect loop") << WebServer::redirect(path.toLatin1()) << failed;
    QTest::newRow("redirect to a file") << WebServer::redirect("file:///etc/hostname") << failed;
    QTest::newRow("redirect to nowhere") << WebServer::redirect("") << failed;
    QTest::newRow("hangs up") << WebServer::Answer([](QTcpSocket &socket) { socket.abort(); }) << failed;
    QTest::newRow("cut short") << WebServer::Answer([](QTcpSocket &socket) {
        socket.write("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n3.2;121");
        socket.disconnectFromHost();
    }) << failed;
    QTest::newRow("another language") << WebServer::Answer([](QTcpSocket &socket) {
        socket.write("220 mail.example.org ready\r\n\r\n");
        socket.disconnectFromHost();
    }) << failed;
}

void TestDownload::answersTheTextOrFails()
{
    QFETCH(WebServer::Answer, answer);
    WebServer server(answer);
    QTEST(outcomeOf(QUrl(server.host() + path)), "outcome");
}

void TestDownload::asksOnceAndPolitely()
{
    WebServer server(WebServer::page("x"));
    outcomeOf(QUrl(server.host() + path));
    QCOMPARE(server.requests().size(), 1);
    QVERIFY(server.requests().first().startsWith("GET /version/Quorlin.txt HTTP/1.1\r\n"));
    QVERIFY(server.requests().first().contains("User-Agent: Quorlin/"));
    QVERIFY(!server.requests().first().toLower().contains("cookie"));
}

void TestDownload::failsAtOnceWhereNobodyListens()
{
    QString host;
    {
        const WebServer server(WebServer::silence());
        host = server.host();
    }
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(outcomeOf(QUrl(host + path)), QStringLiteral("failed"));
    QVERIFY(clock.elapsed() < 900);
}

void TestDownload::waitsNoLongerThanItsLimit_data()
{
    QTest::addColumn<WebServer::Answer>("answer");
    QTest::newRow("says nothing") << WebServer::silence();
    QTest::newRow("says a byte now and then") << WebServer::endless("x", 100);
    QTest::newRow("says a field now and then") << WebServer::endlessHead("X: y", 100);
    QTest::newRow("sends on and on") << WebServer::redirect("/again");
}

void TestDownload::waitsNoLongerThanItsLimit()
{
    QFETCH(WebServer::Answer, answer);
    WebServer server(answer);
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(outcomeOf(QUrl(server.host() + path)), QStringLiteral("failed"));
    QVERIFY2(clock.elapsed() < 2500, qPrintable(QString::number(clock.elapsed())));
}

void TestDownload::takesNoOtherAddresses_data()
{
    QTest::addColumn<QString>("address");
    for (const char *address : {"", "/version/Quorlin.txt", "example.org/version/Quorlin.txt", "file:///etc/hostname",
                                "ftp://127.0.0.1/version/Quorlin.txt", "http:///version/Quorlin.txt",
                                "data:,3.2;121;a;b", "http://127.0.0.1:99999/x"})
        QTest::newRow(address) << QString::fromLatin1(address);
}

void TestDownload::takesNoOtherAddresses()
{
    QFETCH(QString, address);
    const auto text = app::downloadedText(QUrl(address), limits);
    QVERIFY(!text);
    QVERIFY(text.error().message.contains(QStringLiteral("no web address")));
}

void TestDownload::staysUsableAfterAFailure()
{
    WebServer slow(WebServer::silence());
    QCOMPARE(outcomeOf(QUrl(slow.host() + path)), QStringLiteral("failed"));
    WebServer server(WebServer::page("there"));
    QCOMPARE(outcomeOf(QUrl(server.host() + path)), QStringLiteral("there"));
}

void TestDownload::asksTheProxyOfTheEnvironment()
{
    WebServer proxy(WebServer::page("through"));
    qputenv("http_proxy", proxy.host().toLatin1());
    QCOMPARE(outcomeOf(QUrl(QStringLiteral("http://versions.invalid/version/Quorlin.txt"))), QStringLiteral("through"));
    QCOMPARE(proxy.requests().size(), 1);
    QVERIFY(proxy.requests().first().startsWith("GET http://versions.invalid/version/Quorlin.txt HTTP/1.1\r\n"));
    QVERIFY(proxy.requests().first().contains("\r\nHost: versions.invalid\r\n"));
    for (const char *exempt : {"127.0.0.1", "*", "example.org, 127.0.0.1:80"}) {
        WebServer server(WebServer::page("direct"));
        qputenv("no_proxy", exempt);
        QCOMPARE(outcomeOf(QUrl(server.host() + path)), QStringLiteral("direct"));
    }
    qputenv("no_proxy", ".invalid");
    QCOMPARE(outcomeOf(QUrl(QStringLiteral("http://versions.invalid/"))), QStringLiteral("failed"));
    QCOMPARE(proxy.requests().size(), 1);
}

void TestDownload::handlesNoEventMeanwhile()
{
    WebServer server(WebServer::silence());
    bool hasRun = false;
    QTimer::singleShot(0, this, [&hasRun] { hasRun = true; });
    QCOMPARE(outcomeOf(QUrl(server.host() + path)), QStringLiteral("failed"));
    QVERIFY(!hasRun);
    QCoreApplication::processEvents();
    QVERIFY(hasRun);
}

void TestDownload::answersInTheBackground()
{
    WebServer server(WebServer::page("there"));
    QString taken;
    QObject receiver;
    app::downloadText(
        QUrl(server.host() + path), &receiver, [&](const auto &text) { taken = text.value_or(QString()); }, limits);
    QVERIFY(taken.isNull());
    QTRY_COMPARE(taken, QStringLiteral("there"));
    bool isCalled = false;
    {
        QObject gone;
        app::downloadText(
            QUrl(server.host() + path), &gone, [&](const auto &) { isCalled = true; }, limits);
    }
    QTRY_COMPARE(server.requests().size(), 2);
    QTest::qWait(100);
    QVERIFY(!isCalled);
}

QUORLIN_TEST(TestDownload)
#include "tst_download.moc"
