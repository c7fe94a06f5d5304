#include "app/models/picture_order.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using window::InputRule;
using window::PictureModel;
using window::PictureOrder;
using window::StatusKind;

namespace {

constexpr int anySize = 10;

} // namespace

class TestPictureOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_model = std::make_unique<PictureModel>();
        m_order = std::make_unique<PictureOrder>(*m_model, nullptr);
    }

    void keepsTheOrderOfAddingUntilAColumnIsChosen()
    {
        add({"b.jpg", "a.jpg", "c.jpg"});
        QCOMPARE(names(), QStringLiteral("b.jpg a.jpg c.jpg"));
        m_order->sort(PictureModel::Name);
        QCOMPARE(names(), QStringLiteral("a.jpg b.jpg c.jpg"));
        m_order->sort(-1);
        QCOMPARE(names(), QStringLiteral("b.jpg a.jpg c.jpg"));
    }

    void sortsNumbersInNamesByTheirValue()
    {
        add({"IMG_10.jpg", "IMG_9.jpg", "img_1.jpg", "IMG_100.jpg"});
        m_order->sort(PictureModel::Name);
        QCOMPARE(names(), QStringLiteral("img_1.jpg IMG_9.jpg IMG_10.jpg IMG_100.jpg"));
        m_order->sort(PictureModel::Name, Qt::DescendingOrder);
        QCOMPARE(names(), QStringLiteral("IMG_100.jpg IMG_10.jpg IMG_9.jpg img_1.jpg"));
    }

    void sortsSizesAsNumbersAndNotAsTexts()
    {
        write("large.jpg", 1200000);
        write("small.jpg", 9);
        write("middle.jpg", 30000);
        m_order->sort(PictureModel::Bytes);
        QCOMPARE(names(), QStringLiteral("small.jpg middle.jpg large.jpg"));
    }

    void sortsByPlannedNamesAndByStatus()
    {
        add({"a.jpg", "b.jpg", "c.jpg"});
        m_model->setPlan(0, QStringLiteral("3.jpg"), QStringLiteral("30 × 20"));
        m_model->setPlan(1, QStringLiteral("1.jpg"), QStringLiteral("200 × 100"));
        m_model->setPlan(2, QStringLiteral("2.jpg"), QStringLiteral("5 × 4"));
        m_order->sort(PictureModel::NewName);
        QCOMPARE(names(), QStringLiteral("b.jpg c.jpg a.jpg"));
        m_order->sort(PictureModel::NewSize);
        QCOMPARE(names(), QStringLiteral("c.jpg a.jpg b.jpg"));
        m_model->setStatus(0, StatusKind::Good, QStringLiteral("Done"), {});
        m_model->setStatus(1, StatusKind::Bad, QStringLiteral("Failed"), {});
        m_model->setStatus(2, StatusKind::Bad, QStringLiteral("Cannot be read"), {});
        m_order->sort(PictureModel::Status);
        QCOMPARE(names(), QStringLiteral("c.jpg a.jpg b.jpg"));
    }

    void staysAsItWasSortedWhileRowsChange()
    {
        add({"a.jpg", "b.jpg"});
        m_order->sort(PictureModel::NewName);
        m_model->setPlan(0, QStringLiteral("z.jpg"), {});
        m_model->setPlan(1, QStringLiteral("y.jpg"), {});
        QCOMPARE(names(), QStringLiteral("a.jpg b.jpg"));
    }

    void showsProblemsOnly()
    {
        add({"a.jpg", "b.jpg", "c.jpg"});
        m_model->setStatus(0, StatusKind::Good, QStringLiteral("Done"), {});
        m_model->setStatus(1, StatusKind::Bad, QStringLiteral("Failed"), {});
        m_model->setStatus(2, StatusKind::Caution, QStringLiteral("Smaller than wanted"), {});
        m_order->setProblemsOnly(true);
        QVERIFY(m_order->problemsOnly());
        QCOMPARE(names(), QStringLiteral("b.jpg"));
        m_order->setProblemsOnly(false);
        QCOMPARE(names(), QStringLiteral("a.jpg b.jpg c.jpg"));
    }

    void showsOnlyTheChosenOnes()
    {
        add({"a.jpg", "b.jpg", "c.jpg"});
        m_order->setOnly(QSet<int>{m_model->row(0).id, m_model->row(2).id});
        QCOMPARE(names(), QStringLiteral("a.jpg c.jpg"));
        m_order->setOnly(QSet<int>{});
        QCOMPARE(names(), QString());
        m_order->setOnly(std::nullopt);
        QCOMPARE(names(), QStringLiteral("a.jpg b.jpg c.jpg"));
    }

    void hidesWhatTheActionDoesNotTake_data()
    {
        QTest::addColumn<bool>("folders");
        QTest::addColumn<bool>("anyFile");
        QTest::addColumn<QSet<QString>>("extensions");
        QTest::addColumn<QString>("shown");
        QTest::newRow("files of any kind")
            << false << true << QSet<QString>() << QStringLiteral("a.JPG b.txt .jpg jpg");
        QTest::newRow("pictures") << false << false << QSet<QString>{QStringLiteral("jpg")} << QStringLiteral("a.JPG");
        QTest::newRow("folders") << true << false << QSet<QString>() << QStringLiteral("f.jpg");
        QTest::newRow("nothing") << false << false << QSet<QString>() << QString();
    }

    void hidesWhatTheActionDoesNotTake()
    {
        QFETCH(bool, folders);
        QFETCH(bool, anyFile);
        QFETCH(QSet<QString>, extensions);
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("f.jpg")));
        add({"a.JPG", "b.txt", ".jpg", "jpg"});
        m_model->add({m_folder->filePath(QStringLiteral("f.jpg"))});
        m_order->setInput({folders, anyFile, extensions, 0, {}});
        QTEST(names(), "shown");
        QCOMPARE(m_order->input().folders, folders);
    }

private:
    void write(const char *name, int bytes)
    {
        QFile file(m_folder->filePath(QString::fromUtf8(name)));
        QVERIFY(file.open(QFile::WriteOnly));
        file.write(QByteArray(bytes, 'x'));
        file.close();
        m_model->add({file.fileName()});
    }

    void add(std::initializer_list<const char *> files)
    {
        for (const char *name : files)
            write(name, anySize);
    }

    QString names() const
    {
        QStringList shown;
        for (int row = 0; row < m_order->rowCount(); ++row)
            shown.append(m_order->index(row, PictureModel::Name).data().toString());
        return shown.join(QLatin1Char(' '));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<PictureModel> m_model;
    std::unique_ptr<PictureOrder> m_order;
};

QUORLIN_TEST(TestPictureOrder)
#include "tst_picture_order.moc"
