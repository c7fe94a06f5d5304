#include "app/models/picture_model.h"
#include "tests/support/corpus.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using window::PictureModel;
using window::StatusKind;

class TestPictureModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { jobs::WorkerDesk::useProgram(QStringLiteral(QUORLIN_WORKERS "/quorlin-worker")); }
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void addsEveryPathOnce()
    {
        PictureModel model;
        QSignalSpy inserted(&model, &PictureModel::rowsInserted);
        QCOMPARE(model.add({QStringLiteral("/p/a.jpg"), QStringLiteral("/p/b.jpg"), QStringLiteral("/p/a.jpg")}), 2);
        QCOMPARE(model.add({QStringLiteral("/p/b.jpg")}), 0);
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(inserted.count(), 1);
        QCOMPARE(model.row(1).name, QStringLiteral("b.jpg"));
        QCOMPARE(model.rowCount(model.index(0, 0)), 0);
        QCOMPARE(model.columnCount(), int(PictureModel::ColumnCount));
    }

    void keepsTheIdOfARowWhileOthersGo()
    {
        PictureModel model;
        model.add({QStringLiteral("/p/a.jpg"), QStringLiteral("/p/b.jpg"), QStringLiteral("/p/c.jpg")});
        const int third = model.row(2).id;
        model.takeIds({model.row(0).id, model.row(1).id, 4711});
        QCOMPARE(model.rowCount(), 1);
        QCOMPARE(model.indexOfId(third), 0);
        QCOMPARE(model.indexOfId(4711), -1);
        // What was taken off the list can be added another time, as a new row.
        QCOMPARE(model.add({QStringLiteral("/p/a.jpg"), QStringLiteral("/p/c.jpg")}), 1);
        QVERIFY(model.row(1).id > third);
        model.takeAll();
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(model.indexOfId(third), -1);
    }

    void readsTheHeaderWhenItIsAskedFor()
    {
        PictureModel model;
        const QString path = copied("own/orientation/portrait_6.jpg", "six.jpg");
        model.add({path});
        QVERIFY(!model.row(0).headerRead);
        QCOMPARE(text(model, PictureModel::Pixels), QString());
        QSignalSpy changed(&model, &PictureModel::dataChanged);
        const window::PictureRow &row = model.withHeader(0);
        QVERIFY(row.headerRead);
        QCOMPARE(row.orientation, 6);
        QVERIFY2(row.pixels.height() > row.pixels.width(), "the size is the one that users see");
        QCOMPARE(changed.count(), 1);
        model.withHeader(0);
        QCOMPARE(changed.count(), 1);
    }

    void saysByADashThatAFileIsNoPicture()
    {
        PictureModel model;
        const QString path = m_folder->filePath(QStringLiteral("text.jpg"));
        write(path, "no picture");
        model.add({path, m_folder->filePath(QStringLiteral("gone.jpg"))});
        model.withHeader(0);
        model.withHeader(1);
        QCOMPARE(text(model, PictureModel::Pixels), QStringLiteral("–"));
        QVERIFY(model.row(0).pixels.isEmpty());
        QCOMPARE(model.data(model.index(1, PictureModel::Bytes), Qt::DisplayRole).toString(), QStringLiteral("–"));
    }

    void loadsAThumbnailAsLargeAsItIsShown()
    {
        PictureModel model;
        model.add({copied("own/formats/rgb.jpg", "a.jpg"), m_folder->filePath(QStringLiteral("gone.jpg"))});
        QSignalSpy arrived(&model, &PictureModel::thumbnailArrived);
        model.wantThumbnail(0, {32, 24});
        model.wantThumbnail(0, {32, 24});
        model.wantThumbnail(1, {32, 24});
        QCOMPARE(model.thumbnailsInWork(), 2);
        QTRY_COMPARE_WITH_TIMEOUT(arrived.count(), 2, 30000);
        QVERIFY(model.hasThumbnail(0));
        QCOMPARE(model.thumbnail(0).size(), QSize(32, 24));
        QVERIFY(!model.hasThumbnail(1));
        QVERIFY(model.thumbnail(1).isNull());
        QVERIFY2(model.row(1).thumbnailTried, "what cannot be decoded is not tried over and over");
        model.wantThumbnail(1, {32, 24});
        QCOMPARE(model.thumbnailsInWork(), 0);
    }

    void keepsThumbnailsForOthersAndTakesTheirs()
    {
        qputenv("XDG_CACHE_HOME", QFile::encodeName(m_folder->filePath(QStringLiteral("cache"))));
        const QString path = m_folder->filePath(QStringLiteral("a.png"));
        QImage image(400, 300, QImage::Format_RGB32);
        image.fill(Qt::red);
        QVERIFY(image.save(path));
        const auto place = platform::sharedThumbnail(path, {400, 300}, {32, 24});
        QVERIFY(place);

        const auto shownAs = [&path](bool shares) {
            PictureModel model;
            model.setSharesThumbnails(shares);
            model.add({path});
            model.withHeader(0);
            model.wantThumbnail(0, {32, 24});
            if (!QTest::qWaitFor([&model] { return model.hasThumbnail(0); }, 30000))
                return QColor();
            QCoreApplication::sendPostedEvents();
            const QImage shown = model.thumbnail(0).toImage();
            return shown.size() == QSize(32, 24) ? shown.pixelColor(9, 9) : QColor();
        };
        shownAs(false);
        QVERIFY(!place->isThere());
        shownAs(true);
        if (!platform::mayBeThumbnailed(path)) {
            QVERIFY(!place->isThere());
            QSKIP("the disk of this machine is encrypted or removable");
        }
        QVERIFY(place->isThere());
        // Another program has made it blue, another one has left rubbish there.
        QImage blue(128, 96, QImage::Format_RGB32);
        blue.fill(Qt::blue);
        QVERIFY(platform::writeSharedThumbnail(*place, path, blue, {400, 300}));
        QCOMPARE(shownAs(true), QColor(Qt::blue));
        QVERIFY(shownAs(false).red() > 200);
        write(place->path, "no picture");
        QVERIFY(shownAs(true).red() > 200);
    }

    void hasHeadersReadWithoutWaiting()
    {
        PictureModel model;
        const QString path = copied("own/orientation/portrait_6.jpg", "six.jpg");
        write(m_folder->filePath(QStringLiteral("text.jpg")), "no picture");
        model.add({path, m_folder->filePath(QStringLiteral("text.jpg"))});
        QSignalSpy arrived(&model, &PictureModel::headerArrived);
        model.wantHeader(0, jobs::Urgency::Now);
        model.wantHeader(1, jobs::Urgency::Later);
        QVERIFY(!model.row(0).headerRead);
        QTRY_COMPARE_WITH_TIMEOUT(arrived.count(), 2, 30000);
        QCOMPARE(model.row(0).orientation, 6);
        QVERIFY(model.row(1).headerRead);
        QVERIFY(!model.row(1).problem.isEmpty());
        // Another list, or the same picture added again, has nothing to wait for.
        PictureModel other;
        other.add({path});
        other.wantHeader(0, jobs::Urgency::Later);
        QCOMPARE(other.row(0).orientation, 6);
        QCOMPARE(other.headersInWork(), 0);
    }

    void waitsForNothingOfRowsThatHaveGone()
    {
        PictureModel model;
        QSignalSpy headers(&model, &PictureModel::headerArrived);
        QSignalSpy thumbnails(&model, &PictureModel::thumbnailArrived);
        model.add({copied("own/formats/rgb.jpg", "a.jpg"), copied("own/formats/rgb.jpg", "b.jpg"),
                   copied("own/formats/rgb.jpg", "c.jpg")});
        const int kept = model.row(2).id;
        for (int row = 0; row < 3; ++row) {
            model.wantHeader(row, jobs::Urgency::Now);
            model.wantThumbnail(row, {8, 8});
        }
        model.takeIds({model.row(0).id});
        model.dropThumbnailsBut({kept});
        QCOMPARE(model.headersInWork(), 2);
        QCOMPARE(model.thumbnailsInWork(), 1);
        QTRY_COMPARE_WITH_TIMEOUT(headers.count() + thumbnails.count(), 3, 30000);
        QVERIFY(model.hasThumbnail(model.indexOfId(kept)));
        QVERIFY(!model.hasThumbnail(0));
    }

    void forgetsWhatItKnewOfAFileThatWasWritten()
    {
        PictureModel model;
        const QString path = copied("own/formats/rgb.jpg", "a.jpg");
        model.add({path});
        const QSize before = model.withHeader(0).pixels;
        model.wantThumbnail(0, {8, 8});
        QTRY_VERIFY_WITH_TIMEOUT(model.hasThumbnail(0), 30000);
        QVERIFY(QFile::remove(path));
        QVERIFY(QFile::copy(picturePath("own/orientation/portrait_6.jpg"), path));
        QCOMPARE(model.withHeader(0).pixels, before);
        model.forget(0);
        QVERIFY(!model.hasThumbnail(0));
        QVERIFY(!model.row(0).thumbnailTried);
        QCOMPARE(model.withHeader(0).orientation, 6);
    }

    void followsARenamedFileAlsoInASwap()
    {
        PictureModel model;
        model.add({QStringLiteral("/p/a.jpg"), QStringLiteral("/p/b.jpg")});
        model.setPath(0, QStringLiteral("/p/b.jpg"));
        model.setPath(1, QStringLiteral("/p/a.jpg"));
        QCOMPARE(model.row(0).name, QStringLiteral("b.jpg"));
        QCOMPARE(model.add({QStringLiteral("/p/a.jpg"), QStringLiteral("/p/b.jpg")}), 0);
        model.setPath(0, QStringLiteral("/q/c.jpg"));
        QCOMPARE(model.add({QStringLiteral("/p/b.jpg")}), 1);
    }

    void tellsOfPlansAndStatesOnlyWhereTheyChange()
    {
        PictureModel model;
        model.add({QStringLiteral("/p/a.jpg")});
        QSignalSpy changed(&model, &PictureModel::dataChanged);
        for (int i = 0; i < 2; ++i) {
            model.setPlan(0, QStringLiteral("b.jpg"), QStringLiteral("30 × 20"));
            model.setStatus(0, StatusKind::Bad, QStringLiteral("Failed"), QStringLiteral("the file ends too early"));
        }
        QCOMPARE(changed.count(), 2);
        QCOMPARE(text(model, PictureModel::NewName), QStringLiteral("b.jpg"));
        QCOMPARE(text(model, PictureModel::NewSize), QStringLiteral("30 × 20"));
        QCOMPARE(text(model, PictureModel::Status), QStringLiteral("Failed"));
        const auto toolTip = [&model](int column) {
            return model.data(model.index(0, column), Qt::ToolTipRole).toString();
        };
        QCOMPARE(toolTip(PictureModel::Status), QStringLiteral("the file ends too early"));
        QCOMPARE(toolTip(PictureModel::NewName), QStringLiteral("b.jpg"));
        QCOMPARE(toolTip(PictureModel::Name), QStringLiteral("/p/a.jpg"));
        model.setStatus(0, StatusKind::Good, QStringLiteral("Done"), {});
        QCOMPARE(toolTip(PictureModel::Status), QStringLiteral("Done"));
    }

    void hasOtherHeadingsWhereTheyAreGiven()
    {
        PictureModel model;
        QSignalSpy changed(&model, &PictureModel::headerDataChanged);
        model.setHeadings({{PictureModel::NewName, QStringLiteral("Destination")}});
        QCOMPARE(changed.count(), 1);
        QCOMPARE(heading(model, PictureModel::NewName), QStringLiteral("Destination"));
        QCOMPARE(heading(model, PictureModel::Name), QStringLiteral("Name"));
        model.setHeadings({});
        QCOMPARE(heading(model, PictureModel::NewName), QStringLiteral("New name"));
        QCOMPARE(heading(model, PictureModel::Thumbnail), QString());
        QVERIFY(!model.headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
    }

    void listsAFolderAsOne()
    {
        PictureModel model;
        model.add({m_folder->path()});
        QVERIFY(model.row(0).isFolder);
        QCOMPARE(text(model, PictureModel::Type), QStringLiteral("Folder"));
    }

private:
    QString copied(const char *picture, const char *name) const
    {
        const QString path = m_folder->filePath(QString::fromUtf8(name));
        QFile::copy(picturePath(picture), path);
        return path;
    }

    static void write(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        QVERIFY(file.open(QFile::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
    }

    static QString text(const PictureModel &model, int column)
    {
        return model.data(model.index(0, column), Qt::DisplayRole).toString();
    }

    static QString heading(const PictureModel &model, int column)
    {
        return model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QUORLIN_GUI_TEST(TestPictureModel)
#include "tst_picture_model.moc"
