#include "jobs/reading/preview_edits.h"
#include "jobs/reading/reading_messages.h"
#include "jobs/services/recipe_service.h"
#include "platform/descriptors/shared_image.h"
#include "platform/file/lent_file.h"
#include "platform/imageio/comments/user_comment_writer.h"
#include "platform/imageio/source/image_source.h"
#include "platform/workers/worker_pool.h"
#include "tests/support/corpus.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"
#include "tests/unit/jobs/batches.h"

#include <QDirIterator>
#include <QEventLoop>
#include <QTest>

#include <fcntl.h>

using namespace jobs;
using platform::Message;

/** What workers report about pictures that this process does not open, and what it does not trust. */
class TestPictureReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsTheFacts();
    void tellsFactsOfWhatCannotBeDecoded();
    void makesThumbnails();
    void takesSharedThumbnailsOfThatPictureOnly();
    void makesRenditions_data();
    void makesRenditions();
    void makesResults();
    void usesFilesThatComeAlong();
    void followsAFileThatChanges();
    void tellsProperties();
    void tellsComments();
    void tellsProfiles();
    void plansAndWeighs();
    void saysWhatIsWrong();
    void goesOnWithTheCorpus();
    void believesNoAnswer_data();
    void believesNoAnswer();
};

namespace {

struct Answer
{
    bool isThere = false;
    AnswerMessage message;
    QImage image;

    QVariant value(const char *name) const { return message.values.value(QString::fromLatin1(name)); }
};

/** A worker that is asked one thing after the other. */
class Asked
{
public:
    Asked() : m_pool(batches::workerProgram(), {}, platform::MessageSocket::Files::Taken)
    {
        m_pool.onMessage = [this](int, Message message) {
            m_message = std::move(message);
            m_loop.quit();
        };
        m_pool.onEnded = [this](int, platform::WorkerEnd) {
            m_hasEnded = true;
            m_loop.quit();
        };
        m_worker = m_pool.start().value();
        m_loop.exec();
    }

    bool hasEnded() const { return m_hasEnded; }

    Answer ask(Reading what, const QStringList &paths, const QVariantMap &values = {})
    {
        Message message = toMessage(ReadMessage{what, values, paths});
        for (const QString &path : paths)
            message.files.push_back(platform::LentFile::open(path).value().takeDescriptor());
        m_pool.send(m_worker, std::move(message));
        m_loop.exec();
        Answer answer;
        const auto said = fromMessage<AnswerMessage>(m_message);
        answer.isThere = said.has_value() && !m_hasEnded;
        answer.message = said.value_or(AnswerMessage());
        if (!m_message.files.empty())
            answer.image = platform::imageFrom(
                {answer.message.pixels, answer.message.hasAlpha, std::move(m_message.files.front())});
        return answer;
    }

    Answer ask(Reading what, const QString &path, const QVariantMap &values = {})
    {
        return ask(what, QStringList{path}, values);
    }

private:
    platform::WorkerPool m_pool;
    int m_worker = -1;
    QEventLoop m_loop;
    Message m_message;
    bool m_hasEnded = false;
};

QVariantMap room(double width, double height, bool covers = false)
{
    return {{QStringLiteral("roomWidth"), width},
            {QStringLiteral("roomHeight"), height},
            {QStringLiteral("covers"), covers}};
}

QImage halves(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, x < size.width() / 2 ? qRgb(250, 10, 20) : qRgb(20, 30, 240));
    return image;
}

QString saved(const ScratchFolder &folder, const char *name, const QImage &image)
{
    const QString path = folder.path(name);
    if (!image.save(path, nullptr, 90))
        qFatal("no picture");
    return path;
}

QVariantMap recipe(const QVariantMap &operation, const QVariantMap &output)
{
    return {{QStringLiteral("quorlin"), 1},
            {QStringLiteral("operations"), QVariantList{operation}},
            {QStringLiteral("outputs"), QVariantList{output}}};
}

QVariantMap resized(int longest)
{
    return {{QStringLiteral("do"), QStringLiteral("resize")}, {QStringLiteral("longest"), longest}};
}

QVariantMap jpegOutput()
{
    return {{QStringLiteral("type"), QStringLiteral("jpeg")}, {QStringLiteral("quality"), 80}};
}

} // namespace

void TestPictureReader::tellsTheFacts()
{
    ScratchFolder folder;
    const QString path = saved(folder, "a.jpg", halves({60, 40}));
    Asked asked;
    const Answer answer = asked.ask(Reading::Facts, path);
    QVERIFY(answer.isThere);
    QCOMPARE(answer.message.problem, QString());
    QCOMPARE(answer.value("width").toInt(), 60);
    QCOMPARE(answer.value("height").toInt(), 40);
    QCOMPARE(answer.value("orientation").toInt(), 1);
    QCOMPARE(answer.value("type").toString(), QStringLiteral("public.jpeg"));
    QCOMPARE(answer.value("statedWidth").toInt(), 60);
    const auto source = platform::ImageSource::open(path);
    QCOMPARE(answer.value("pointWidth").toDouble(), source->pointSize().width());
}

void TestPictureReader::tellsFactsOfWhatCannotBeDecoded()
{
    ScratchFolder folder;
    const QString path = folder.path("a.jpg");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("no picture") > 0);
    file.close();
    Asked asked;
    const Answer answer = asked.ask(Reading::Facts, path);
    QVERIFY(answer.isThere);
    QVERIFY(!answer.message.problem.isEmpty());
    QVERIFY(answer.value("width").isNull());
    QCOMPARE(asked.ask(Reading::Facts, saved(folder, "b.png", halves({4, 4}))).value("width").toInt(), 4);
}

void TestPictureReader::makesThumbnails()
{
    ScratchFolder folder;
    Asked asked;
    const Answer answer = asked.ask(Reading::Thumbnail, saved(folder, "a.jpg", halves({600, 200})),
                                    {{QStringLiteral("width"), 48}, {QStringLiteral("height"), 32}});
    QCOMPARE(answer.image.size(), QSize(48, 32));
    QVERIFY(qRed(answer.image.pixel(2, 16)) > 200 && qBlue(answer.image.pixel(45, 16)) > 200);
}

void TestPictureReader::takesSharedThumbnailsOfThatPictureOnly()
{
    ScratchFolder folder;
    Asked asked;
    const QString path = saved(folder, "a.jpg", halves({600, 200}));
    const QString kept = folder.path("kept.png");
    const auto ask = [&](QSize size, const char *uri, const char *modified) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::green);
        image.setText(QStringLiteral("Thumb::URI"), QString::fromLatin1(uri));
        image.setText(QStringLiteral("Thumb::MTime"), QString::fromLatin1(modified));
        if (!image.save(kept))
            qFatal("no thumbnail");
        const QVariantMap values = {
            {QStringLiteral("width"), 48},
            {QStringLiteral("height"), 32},
            {QStringLiteral("side"), 128},
            {QStringLiteral("uri"), QStringLiteral("file:///somewhere/of/many/letters/a%20b/a.jpg")},
            {QStringLiteral("modified"), 1700000000.0}};
        return asked.ask(Reading::Thumbnail, {path, kept}, values);
    };
    const char *own = "file:///somewhere/of/many/letters/a%20b/a.jpg";
    Answer answer = ask({128, 43}, own, "1700000000");
    QVERIFY(answer.value("isKept").toBool());
    QCOMPARE(answer.image.size(), QSize(128, 43));
    QCOMPARE(QColor(answer.image.pixel(9, 9)), QColor(Qt::green));
    for (const auto &[size, uri, modified] :
         {std::tuple(QSize(128, 43), "file:///other.jpg", "1700000000"), std::tuple(QSize(128, 43), own, "1700000001"),
          std::tuple(QSize(128, 43), own, ""), std::tuple(QSize(129, 43), own, "1700000000")}) {
        answer = ask(size, uri, modified);
        QVERIFY2(!answer.value("isKept").toBool(), modified);
        QCOMPARE(answer.image.size(), QSize(128, 43));
        QVERIFY(qRed(answer.image.pixel(2, 16)) > 200 && qBlue(answer.image.pixel(120, 16)) > 200);
    }
}

void TestPictureReader::makesRenditions_data()
{
    QTest::addColumn<QSize>("pixels");
    QTest::addColumn<QVariantMap>("room");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("fits") << QSize(60, 40) << room(100, 100) << QSize(60, 40);
    QTest::newRow("fits exactly") << QSize(60, 40) << room(60, 40) << QSize(60, 40);
    QTest::newRow("too wide") << QSize(60, 40) << room(30, 100) << QSize(30, 20);
    QTest::newRow("too high") << QSize(60, 40) << room(100, 20) << QSize(30, 20);
    QTest::newRow("covered") << QSize(60, 40) << room(30, 30, true) << QSize(45, 30);
    QTest::newRow("no more than there is") << QSize(60, 40) << room(300, 300, true) << QSize(60, 40);
    QTest::newRow("no room") << QSize(60, 40) << room(0, 0) << QSize(1, 1);
    QTest::newRow("a strip") << QSize(4000, 4) << room(100, 100) << QSize(100, 1);
    QTest::newRow("a strip that covers") << QSize(4000, 4) << room(2, 2, true) << QSize(32, 1);
}

void TestPictureReader::makesRenditions()
{
    QFETCH(QSize, pixels);
    QFETCH(QVariantMap, room);
    QFETCH(QSize, expected);
    ScratchFolder folder;
    Asked asked;
    const Answer answer = asked.ask(Reading::Rendition, saved(folder, "a.png", halves(pixels)), room);
    QCOMPARE(answer.image.size(), expected);
    QCOMPARE(answer.value("width").toInt(), pixels.width());
    QCOMPARE(answer.value("height").toInt(), pixels.height());
    QVERIFY(!answer.message.hasAlpha);
}

void TestPictureReader::makesResults()
{
    ScratchFolder folder;
    const QString path = saved(folder, "Lake.png", halves({120, 80}));
    const QVariantList edits = {QVariantMap{
        {QStringLiteral("do"), QStringLiteral("recipe")},
        {QStringLiteral("path"), path},
        {QStringLiteral("operations"),
         QVariantList{QVariantMap{{QStringLiteral("do"), QStringLiteral("watermark")},
                                  {QStringLiteral("text"), QStringLiteral("{name} {type} {created:yyyy}")},
                                  {QStringLiteral("size"), 30}},
                      QVariantMap{{QStringLiteral("do"), QStringLiteral("turn")}, {QStringLiteral("degrees"), 90}}}}}};
    QVariantMap values = room(60, 60);
    values.insert(QStringLiteral("edits"), edits);
    values.insert(QStringLiteral("created"), QStringLiteral("2026-08-14T10:20:30"));
    Asked asked;
    const Answer answer = asked.ask(Reading::Result, path, values);
    QCOMPARE(answer.message.problem, QString());
    QCOMPARE(answer.value("width").toInt(), 80);
    QCOMPARE(answer.value("height").toInt(), 120);

    const auto source = platform::ImageSource::open(path);
    text::TokenFacts facts;
    facts.path = path;
    facts.type = QStringLiteral("PNG");
    facts.created = QStringLiteral("2026-08-14T10:20:30");
    const auto expected = done(editsFrom(edits).value(), {source->decodeScaled({60, 40}).value(), {120, 80}}, facts);
    QCOMPARE(answer.image, expected->bitmap.toScreenImage().convertToFormat(answer.image.format()));
}

void TestPictureReader::usesFilesThatComeAlong()
{
    ScratchFolder folder;
    const QString path = saved(folder, "a.png", halves({80, 60}));
    const QString mark = saved(folder, "mark.png", halves({20, 20}));
    const QVariantMap operation = {{QStringLiteral("do"), QStringLiteral("watermark")},
                                   {QStringLiteral("picture"), mark},
                                   {QStringLiteral("opacity"), 100}};
    const QVariantMap made = recipe(operation, jpegOutput());
    QVariantMap values = room(80, 60);
    values.insert(QStringLiteral("edits"),
                  QVariantList{QVariantMap{{QStringLiteral("do"), QStringLiteral("recipe")},
                                           {QStringLiteral("path"), path},
                                           {QStringLiteral("operations"), made.value(QStringLiteral("operations"))}}});
    Asked asked;
    const Answer shown = asked.ask(Reading::Result, {path, mark}, values);
    QCOMPARE(shown.message.problem, QString());
    QVERIFY(qRed(shown.image.pixel(64, 50)) > 200); // the left half of the mark, in the right half of the picture
    QCOMPARE(asked.ask(Reading::Plan, {path, mark}, {{QStringLiteral("recipe"), made}}).value("width").toInt(), 80);
    // What was not passed over is not there, whatever is on the disk.
    QVERIFY(!asked.ask(Reading::Result, path, values).message.problem.isEmpty());
    QVERIFY(!asked.ask(Reading::Plan, path, {{QStringLiteral("recipe"), made}}).message.problem.isEmpty());
}

void TestPictureReader::followsAFileThatChanges()
{
    ScratchFolder folder;
    const QString path = saved(folder, "a.png", halves({80, 60}));
    Asked asked;
    QCOMPARE(asked.ask(Reading::Rendition, path, room(80, 80)).image.size(), QSize(80, 60));
    saved(folder, "a.png", halves({40, 20}));
    QCOMPARE(asked.ask(Reading::Rendition, path, room(80, 80)).image.size(), QSize(40, 20));
}

void TestPictureReader::tellsProperties()
{
    ScratchFolder folder;
    const QString path = saved(folder, "a.jpg", halves({60, 40}));
    Asked asked;
    const Answer answer = asked.ask(Reading::Properties, path);
    const QVariantMap expected = platform::ImageSource::open(path)->properties().value();
    QVERIFY(!expected.isEmpty());
    QCOMPARE(answer.value("properties").toMap(), expected);
}

void TestPictureReader::tellsComments()
{
    ScratchFolder folder;
    const QString path = saved(folder, "a.jpg", halves({60, 40}));
    QVERIFY(platform::writeUserComment(path, QStringLiteral("Grüße")));
    Asked asked;
    const Answer answer = asked.ask(Reading::Comment, path);
    QCOMPARE(answer.value("comment").toString(), QStringLiteral("Grüße"));
    QVERIFY(answer.value("holds").toBool());
    QCOMPARE(answer.value("pagesLost").toInt(), 0);
    QVERIFY(!asked.ask(Reading::Comment, saved(folder, "a.bmp", halves({6, 4}))).value("holds").toBool());
}

void TestPictureReader::tellsProfiles()
{
    ScratchFolder folder;
    Asked asked;
    const Answer answer = asked.ask(Reading::Profile, saved(folder, "a.png", halves({6, 4})));
    QCOMPARE(answer.message.problem, QString());
    QVERIFY(answer.value("heldBy").toStringList().contains(QStringLiteral("public.jp2")));
}

void TestPictureReader::plansAndWeighs()
{
    ScratchFolder folder;
    const QString path = saved(folder, "a.png", halves({200, 100}));
    const QVariantMap made = recipe(resized(50), jpegOutput());
    Asked asked;
    const Answer plan = asked.ask(Reading::Plan, path, {{QStringLiteral("recipe"), made}});
    QCOMPARE(plan.value("problem").toString(), QString());
    QCOMPARE(plan.value("width").toInt(), 50);
    QCOMPARE(plan.value("height").toInt(), 25);
    QCOMPARE(plan.value("extension").toString(), QStringLiteral(".jpg"));
    const Answer bytes = asked.ask(Reading::Bytes, path, {{QStringLiteral("recipe"), made}});
    const QString target = folder.path("b.jpg");
    QCOMPARE(RecipeService().make(path, made, target).value(QStringLiteral("outcome")).toString(),
             QStringLiteral("OK"));
    QCOMPARE(qint64(bytes.value("bytes").toDouble()), QFileInfo(target).size());
}

void TestPictureReader::saysWhatIsWrong()
{
    ScratchFolder folder;
    const QString path = folder.path("a.jpg");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("\xff\xd8\xff\xe0 and no more") > 0);
    file.close();
    Asked asked;
    for (const Reading what : {Reading::Thumbnail, Reading::Rendition, Reading::Result, Reading::Properties,
                               Reading::Profile, Reading::Plan, Reading::Bytes}) {
        const Answer answer = asked.ask(what, path, {{QStringLiteral("recipe"), recipe(resized(9), jpegOutput())}});
        QVERIFY(answer.isThere);
        QVERIFY(!answer.message.problem.isEmpty());
        QVERIFY(answer.image.isNull());
    }
}

void TestPictureReader::goesOnWithTheCorpus()
{
    if (!corpusIsThere())
        QSKIP("There is no collection of pictures");
    Asked asked;
    int count = 0;
    for (QDirIterator files(corpusFolder(), QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
        const QString path = files.next();
        for (const Reading what : {Reading::Facts, Reading::Thumbnail, Reading::Comment}) {
            const Answer answer =
                asked.ask(what, path, {{QStringLiteral("width"), 48}, {QStringLiteral("height"), 32}});
            QVERIFY2(!asked.hasEnded(), qPrintable(path));
            QVERIFY2(answer.isThere, qPrintable(path));
        }
        ++count;
    }
    QVERIFY(count > 0);
}

void TestPictureReader::believesNoAnswer_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<int>("files");
    AnswerMessage good;
    good.pixels = QSize(4, 4);
    const QByteArray body = toMessage(good).body;
    QTest::newRow("nothing") << QByteArray() << 0;
    QTest::newRow("cut") << body.left(body.size() - 1) << 1;
    QTest::newRow("too much") << body + 'x' << 1;
    QTest::newRow("no file") << body << 0;
    QTest::newRow("two files") << body << 2;
    QTest::newRow("a file and no pixels") << toMessage(AnswerMessage()).body << 1;
}

void TestPictureReader::believesNoAnswer()
{
    QFETCH(QByteArray, body);
    QFETCH(int, files);
    Message message;
    message.kind = quint16(MessageKind::Answer);
    message.body = body;
    for (int i = 0; i < files; ++i)
        message.files.emplace_back(::open("/dev/null", O_RDONLY | O_CLOEXEC));
    QVERIFY(!fromMessage<AnswerMessage>(message));
}

QUORLIN_TEST(TestPictureReader)
#include "tst_picture_reader.moc"
