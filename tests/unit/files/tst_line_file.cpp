#include "files/items/line_file.h"

#include "tests/support/test_program.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <optional>

#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

/** Files of lines that several processes write, as two windows do their log. */
class LineFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder.emplace(); }
    void keepsWhatOthersAppendWhileItIsShortened();
    void isLeftAsItIsWhileAnotherProcessHoldsIt();
    void writesNothingForNamesThatAreNoPaths();

private:
    QString path() const { return m_folder->filePath(QStringLiteral("log")); }

    QByteArrayList lines() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().split('\n') : QByteArrayList();
    }

    std::optional<QTemporaryDir> m_folder;
};

void LineFiles::keepsWhatOthersAppendWhileItIsShortened()
{
    constexpr int most = 3000;
    constexpr int count = 500;
    constexpr int mostOwn = 1000; // they and his are not shortened away
    QVERIFY(files::appendLines(path(), QByteArray("old\n").repeated(most)));
    const pid_t other = ::fork();
    if (other == 0) {
        for (int i = 0; i < count; ++i)
            if (!files::appendLines(path(), "his " + QByteArray::number(i) + '\n'))
                ::_exit(1);
        ::_exit(0);
    }
    int status = -1;
    int own = 0;
    while (::waitpid(other, &status, WNOHANG) == 0) {
        if (own < mostOwn)
            QVERIFY(files::appendLines(path(), "mine " + QByteArray::number(own++) + '\n'));
        QVERIFY(files::keepNewestLines(path(), most, most + 1));
    }
    QCOMPARE(status, 0);
    QVERIFY(own > 0);
    QVERIFY(files::keepNewestLines(path(), most, most + 1));
    QByteArrayList expected;
    for (int i = 0; i < count; ++i)
        expected.append("his " + QByteArray::number(i));
    QByteArrayList his;
    int mine = 0;
    for (const QByteArray &line : lines()) {
        if (line.startsWith("his"))
            his.append(line);
        mine += line.startsWith("mine") ? 1 : 0;
    }
    std::sort(his.begin(), his.end()); // one that waited too long is kept, but may come later
    std::sort(expected.begin(), expected.end());
    QCOMPARE(his, expected);
    QCOMPARE(mine, own);
}

/** One that is stopped there keeps nobody waiting for ever. */
void LineFiles::isLeftAsItIsWhileAnotherProcessHoldsIt()
{
    QVERIFY(files::appendLines(path(), "1\n2\n3\n"));
    QFile file(path());
    QVERIFY(file.open(QIODevice::ReadOnly) && ::flock(file.handle(), LOCK_EX) == 0);
    QVERIFY(files::keepNewestLines(path(), 1, 2));
    QCOMPARE(lines().size(), 3);
    QVERIFY(files::appendLines(path(), "4\n"));
    QCOMPARE(lines().size(), 4);
    file.close();
    QVERIFY(files::keepNewestLines(path(), 1, 2));
    QCOMPARE(lines(), QByteArrayList{"4"});
}

void LineFiles::writesNothingForNamesThatAreNoPaths()
{
    const QString name = path() + QChar(u'\0') + u'b';
    QVERIFY(!files::appendLines(name, "x\n"));
    QVERIFY(!files::appendPrivateLines(name, "x\n"));
    QVERIFY(!files::keepNewestLines(name, 1, 2));
    QVERIFY(!files::appendLines(QString(), "x\n"));
    QVERIFY(!QFile::exists(path()));
}

QUORLIN_TEST(LineFiles)
#include "tst_line_file.moc"
