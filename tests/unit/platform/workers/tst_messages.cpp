#include "platform/workers/message_socket.h"
#include "tests/support/test_program.h"

#include <QRandomGenerator>
#include <QTest>

#include <climits>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace platform;

/** What one process says to another, which may say anything. */
class TestMessages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsWhatWasWritten();
    void believesNoCount();
    void survivesAnyBody();
    void carriesFiles();
    void carriesWhatIsLarge();
    void endsNonsense_data();
    void endsNonsense();
    void takesNoFilesUnasked();
};

namespace {

struct Ends
{
    MessageSocket one;
    MessageSocket other;
};

Ends ends(MessageSocket::Files files = MessageSocket::Files::Taken)
{
    MessageSocket::Pair pair = MessageSocket::makePair();
    return {MessageSocket(std::move(pair.one), files), MessageSocket(std::move(pair.other), files)};
}

Message messageOf(quint16 kind, const QByteArray &body)
{
    Message message;
    message.kind = kind;
    message.body = body;
    return message;
}

int openFiles()
{
    int count = 0;
    constexpr int most = 1024;
    for (int i = 0; i < most; ++i)
        count += ::fcntl(i, F_GETFD) >= 0;
    return count;
}

} // namespace

void TestMessages::readsWhatWasWritten()
{
    const QString odd = QStringLiteral("a") + QChar(0xdce9) +
                        QStringLiteral("\U0001f600"); // a byte of a name, and a letter of two units
    MessageWriter writer;
    writer.number(LLONG_MIN);
    writer.number(7);
    writer.real(-0.125);
    writer.flag(true);
    writer.text(odd);
    writer.texts({QString(), odd});
    writer.bytes(QByteArray("\0x", 2));
    MessageReader reader(writer.body());
    QCOMPARE(reader.number(), LLONG_MIN);
    QCOMPARE(reader.integer(), 7);
    QCOMPARE(reader.real(), -0.125);
    QVERIFY(reader.flag());
    QCOMPARE(reader.text(), odd);
    QCOMPARE(reader.texts(), QStringList({QString(), odd}));
    QVERIFY(!reader.isAll());
    QCOMPARE(reader.bytes(), QByteArray("\0x", 2));
    QVERIFY(reader.isAll());
    (void)reader.number();
    QVERIFY(!reader.isAll());
}

void TestMessages::believesNoCount()
{
    for (const qint64 count : {qint64(-1), qint64(1), qint64(1) << 40, qint64(LLONG_MAX)}) {
        MessageWriter writer;
        writer.number(count);
        MessageReader bytes(writer.body());
        QVERIFY(bytes.bytes().isEmpty() && !bytes.isAll());
        MessageReader text(writer.body());
        QVERIFY(text.text().isEmpty() && !text.isAll());
        MessageReader texts(writer.body());
        QVERIFY(texts.texts().isEmpty() && !texts.isAll());
    }
    MessageWriter odd;
    odd.bytes("abc"); // one and a half units
    MessageReader text(odd.body());
    QVERIFY(text.text().isEmpty() && !text.isAll());
    MessageWriter large;
    large.number(qint64(INT_MAX) + 1);
    MessageReader integer(large.body());
    QCOMPARE(integer.integer(), 0);
    QVERIFY(!integer.isAll());
}

void TestMessages::survivesAnyBody()
{
    QRandomGenerator random(1);
    for (int i = 0; i < tests::repetitions(2000, 200'000); ++i) {
        QByteArray body(random.bounded(40), Qt::Uninitialized);
        for (char &byte : body)
            byte = char(random.bounded(4) == 0 ? random.bounded(256) : 0);
        MessageReader reader(body);
        (void)reader.texts();
        (void)reader.number(-1, 5);
        (void)reader.text();
        (void)reader.bytes();
        QVERIFY(reader.isAll() || !reader.isAll());
    }
}

void TestMessages::carriesFiles()
{
    const int before = openFiles();
    {
        Ends both = ends();
        constexpr int messages = 5;
        for (int i = 0; i < messages; ++i) {
            Message message = messageOf(quint16(i), QByteArray(i, 'x'));
            for (int file = 0; file < (i == 2 ? int(mostFiles) : i); ++file) {
                int pipe[2] = {-1, -1};
                QCOMPARE(::pipe2(pipe, O_CLOEXEC), 0);
                ::close(pipe[0]);
                message.files.emplace_back(pipe[1]);
            }
            both.one.send(std::move(message));
        }
        for (int i = 0; i < messages; ++i) {
            const auto message = both.other.wait();
            QVERIFY(message);
            QCOMPARE(int(message->kind), i);
            QCOMPARE(message->body, QByteArray(i, 'x'));
            QCOMPARE(message->files.size(), size_t(i == 2 ? int(mostFiles) : i));
            for (const Descriptor &file : message->files)
                QCOMPARE(::fcntl(file.number(), F_GETFD), FD_CLOEXEC);
        }
    }
    QCOMPARE(openFiles(), before);
}

/** More than a socket holds: the rest waits until the other side takes it. */
void TestMessages::carriesWhatIsLarge()
{
    Ends both = ends();
    ::fcntl(both.one.descriptor(), F_SETFL, O_NONBLOCK);
    const QByteArray body(3'000'000, 'y');
    both.one.send(messageOf(1, body));
    both.one.send(messageOf(2, {}));
    QVERIFY(both.one.hasWaiting());
    std::vector<Message> taken;
    while (taken.size() < 2) {
        both.one.sendWaiting();
        both.other.receive();
        while (auto message = both.other.next())
            taken.push_back(std::move(*message));
    }
    QCOMPARE(taken[0].body, body);
    QCOMPARE(taken[1].kind, quint16(2));
    QVERIFY(!both.one.hasWaiting());
    both.one.send(messageOf(3, QByteArray(largestBody + 1, 'z')));
    QCOMPARE(both.one.state(), MessageSocket::State::Nonsense);
}

void TestMessages::endsNonsense_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isNonsense");
    QTest::newRow("other words") << QByteArray("HTTP/1.1 200 OK\r\n") << true;
    QTest::newRow("another version") << QByteArray("Qwm\2\1\0\0\0\0\0\0\0", 12) << true;
    QTest::newRow("too long") << QByteArray("Qwm\1\1\0\0\0\0\0\0\x7f", 12) << true;
    QTest::newRow("files that are not there") << QByteArray("Qwm\1\1\0\1\0\0\0\0\0", 12) << true;
    QTest::newRow("too many files") << QByteArray("Qwm\1\1\0\xff\0\0\0\0\0", 12) << true;
    QTest::newRow("the end in a head") << QByteArray("Qwm\1\1\0") << false;
    QTest::newRow("the end in a body") << QByteArray("Qwm\1\1\0\0\0\5\0\0\0ab", 14) << false;
    QTest::newRow("the end") << QByteArray() << false;
}

void TestMessages::endsNonsense()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, isNonsense);
    MessageSocket::Pair pair = MessageSocket::makePair();
    MessageSocket socket(std::move(pair.one), MessageSocket::Files::Taken);
    QCOMPARE(::write(pair.other.number(), bytes.constData(), size_t(bytes.size())), bytes.size());
    pair.other.close();
    QVERIFY(!socket.wait());
    QCOMPARE(socket.state(), isNonsense ? MessageSocket::State::Nonsense : MessageSocket::State::Ended);
    QVERIFY(!socket.wait());
    socket.send(messageOf(1, "x")); // nobody listens, and no signal comes of it
}

void TestMessages::takesNoFilesUnasked()
{
    const int before = openFiles();
    {
        MessageSocket::Pair pair = MessageSocket::makePair();
        MessageSocket socket(std::move(pair.one), MessageSocket::Files::Refused);
        MessageSocket other(std::move(pair.other), MessageSocket::Files::Taken);
        Message message = messageOf(1, "x");
        message.files.emplace_back(::dup(STDERR_FILENO));
        other.send(std::move(message));
        QVERIFY(!socket.wait());
        QCOMPARE(socket.state(), MessageSocket::State::Nonsense);
    }
    QCOMPARE(openFiles(), before);
}

QUORLIN_TEST(TestMessages)

#include "tst_messages.moc"
