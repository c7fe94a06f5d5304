#include "files/cToolBox.h"
#include "files/items/input_collection.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QQueue>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using namespace platform;

namespace {

/** Answers from a queue, and remembers what it was asked. */
class QueuedPanels : public PanelProvider
{
public:
    PanelAnswer run(const PanelRequest &request) override
    {
        shown << request;
        return answers.isEmpty() ? PanelAnswer() : answers.dequeue();
    }

    QList<PanelRequest> shown;
    QQueue<PanelAnswer> answers;
};

enum class Operation { Standard, Ordering };

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts);
}

const char *const standardBase = "png jpg jpeg gif tif tiff bmp jp2";
const char *const orderingBase = "pdf png jpg jpeg gif tif tiff";
const char *const metadataList = "jpg jpeg tif tiff";

} // namespace

Q_DECLARE_METATYPE(Operation)

class InputCollection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void showsThePanelOfEachKeyword_data();
    void showsThePanelOfEachKeyword();
    void givesNullAndNoPanelForAnUnknownKeyword_data();
    void givesNullAndNoPanelForAnUnknownKeyword();
    void givesAnEmptyListOnCancel_data() { knownKeywords(); }
    void givesAnEmptyListOnCancel();
    void keepsChosenFilesAsThePanelReportsThem_data();
    void keepsChosenFilesAsThePanelReportsThem();
    void takesFromAFolderWhatTheKeywordTakes_data();
    void takesFromAFolderWhatTheKeywordTakes();
    void givesAnEmptyListForAFolderOfFolders();
    void tellsSpellingsApart();
    void doesNotLookIntoAFolderNamedAsTheBrowsersSettings();
    void listsPathsBelowTheChosenFolder();
    void takesTheFirstOfSeveralFolders();
    void startsAfreshOnEveryCall();
    void namesItsClassOperations();

private:
    QVariant collect(Operation operation, const QString &actionType)
    {
        return operation == Operation::Standard ? m_toolBox.hOpenDialogFiles(actionType)
                                                : m_toolBox.hOpenDialogFilesOC(actionType);
    }
    void knownKeywords();
    void accept(const QStringList &paths) { m_panels->answers.enqueue({true, paths, {}}); }
    QString root() const { return m_folder->path(); }
    void make(const QStringList &names);
    QStringList collectFolder(Operation operation, const QString &actionType);

    cToolBox m_toolBox;
    QueuedPanels *m_panels = nullptr;
    std::unique_ptr<QTemporaryDir> m_folder;
};

void InputCollection::init()
{
    auto panels = std::make_unique<QueuedPanels>();
    m_panels = panels.get();
    setPanelProvider(std::move(panels));
    m_folder = std::make_unique<QTemporaryDir>();
}

void InputCollection::make(const QStringList &names)
{
    for (const QString &name : names) {
        const QString path = root() + u'/' + name;
        QVERIFY(QDir().mkpath(path.left(path.lastIndexOf(u'/'))));
        QFile file(path);
        QVERIFY(path.endsWith(u'/') || file.open(QIODevice::WriteOnly));
    }
}

/** Relative to the chosen folder, and sorted, since the walk's order is the file system's own. */
QStringList InputCollection::collectFolder(Operation operation, const QString &actionType)
{
    accept({root()});
    QStringList paths = collect(operation, actionType).toStringList();
    for (QString &path : paths)
        path.remove(0, root().size() + 1);
    paths.sort();
    return paths;
}

void InputCollection::showsThePanelOfEachKeyword_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QString>("actionType");
    QTest::addColumn<bool>("files");
    QTest::addColumn<bool>("anyType");
    QTest::addColumn<QStringList>("types");
    const auto row = [](Operation operation, const char *actionType, bool files, const char *types) {
        QTest::addRow("%s%s", actionType, operation == Operation::Standard ? "" : " OC")
            << operation << QString::fromLatin1(actionType) << files << (types == nullptr)
            << (types ? words(types) : QStringList());
    };
    const char *const watermark = "jpg jpeg tif tiff png JPG JPEG TIF TIFF PNG";
    row(Operation::Standard, "EMM", true, metadataList);
    row(Operation::Standard, "batchSort", true, standardBase);
    row(Operation::Standard, "resize", true, "jpg jpeg tif tiff png jp2 gif bmp");
    row(Operation::Standard, "sort", true, standardBase);
    row(Operation::Standard, "rescale", true, standardBase);
    row(Operation::Standard, "rename", true, nullptr);
    row(Operation::Standard, "renameDir", false, nullptr);
    row(Operation::Standard, "sortDir", false, standardBase);
    row(Operation::Standard, "WatermarkDir", false, standardBase);
    row(Operation::Standard, "WatermarkFiles", true, watermark);
    row(Operation::Ordering, "EMM", true, metadataList);
    row(Operation::Ordering, "EMMDir", false, orderingBase);
    row(Operation::Ordering, "sort", true, orderingBase);
    row(Operation::Ordering, "rescale", true, orderingBase);
    row(Operation::Ordering, "rename", true, nullptr);
    row(Operation::Ordering, "renameDir", false, nullptr);
    row(Operation::Ordering, "batchSortImages", false, orderingBase);
    row(Operation::Ordering, "sortDir", false, orderingBase);
}

void InputCollection::showsThePanelOfEachKeyword()
{
    QFETCH(Operation, operation);
    QFETCH(QString, actionType);
    QFETCH(bool, files);
    QFETCH(bool, anyType);
    QFETCH(QStringList, types);
    collect(operation, actionType);
    QCOMPARE(m_panels->shown.size(), 1);
    const PanelRequest request = m_panels->shown.first();
    QCOMPARE(request.kind, PanelKind::Open);
    QCOMPARE(request.choosesFiles, files);
    QCOMPARE(request.choosesSeveral, files);
    QCOMPARE(request.choosesFolders, !files);
    QCOMPARE(request.types.has_value(), !anyType);
    QCOMPARE(request.types.value_or(QStringList()), types);
}

void InputCollection::givesNullAndNoPanelForAnUnknownKeyword_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QString>("actionType");
    const auto rows = [](Operation operation, const QStringList &keywords) {
        for (const QString &each : keywords)
            QTest::addRow("'%s'%s", qPrintable(each), operation == Operation::Standard ? "" : " OC")
                << operation << each;
    };
    const QStringList wrong = words("Emm emm RESIZE Sort renamedir RenameDir sortdir watermarkDir unknown")
                              << QString() << QStringLiteral(" sort") << QStringLiteral("sort ")
                              << QStringLiteral("sort\n") << QString(QStringLiteral("sort") + QChar(0));
    rows(Operation::Standard, wrong + words("EMMDir batchSortImages"));
    rows(Operation::Ordering, wrong + words("batchSort resize WatermarkDir WatermarkFiles"));
}

void InputCollection::givesNullAndNoPanelForAnUnknownKeyword()
{
    QFETCH(Operation, operation);
    QFETCH(QString, actionType);
    QVERIFY(collect(operation, actionType).isNull());
    QVERIFY(m_panels->shown.isEmpty());
}

void InputCollection::knownKeywords()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QString>("actionType");
    for (const QString &each :
         words("EMM batchSort resize sort rescale rename renameDir sortDir WatermarkDir WatermarkFiles"))
        QTest::addRow("%s", qPrintable(each)) << Operation::Standard << each;
    for (const QString &each : words("EMM EMMDir sort rescale rename renameDir batchSortImages sortDir"))
        QTest::addRow("%s OC", qPrintable(each)) << Operation::Ordering << each;
}

void InputCollection::givesAnEmptyListOnCancel()
{
    QFETCH(Operation, operation);
    QFETCH(QString, actionType);
    m_panels->answers.enqueue({false, {QStringLiteral("/chosen/but/cancelled.jpg")}, {}});
    const QVariant result = collect(operation, actionType);
    QVERIFY(!result.isNull());
    QCOMPARE(result.typeId(), int(QMetaType::QStringList));
    QCOMPARE(result.toStringList(), QStringList());
}

void InputCollection::keepsChosenFilesAsThePanelReportsThem_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QString>("actionType");
    for (const QString &each : words("EMM batchSort resize sort rescale rename WatermarkFiles"))
        QTest::addRow("%s", qPrintable(each)) << Operation::Standard << each;
    for (const QString &each : words("EMM sort rescale rename"))
        QTest::addRow("%s OC", qPrintable(each)) << Operation::Ordering << each;
}

void InputCollection::keepsChosenFilesAsThePanelReportsThem()
{
    QFETCH(Operation, operation);
    QFETCH(QString, actionType);
    const QStringList chosen = {QStringLiteral("/z/b c.jpg"), QStringLiteral("/a/ä.bmp"), QStringLiteral("/z/b c.jpg"),
                                QStringLiteral("/a/no extension"), QStringLiteral("/missing/x.PDF")};
    accept(chosen);
    QCOMPARE(collect(operation, actionType).toStringList(), chosen);
}

void InputCollection::takesFromAFolderWhatTheKeywordTakes_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QString>("actionType");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](Operation operation, const char *actionType, const QStringList &expected) {
        QTest::addRow("%s%s", actionType, operation == Operation::Standard ? "" : " OC")
            << operation << QString::fromLatin1(actionType) << expected;
    };
    const QStringList metadata = words("01.jpg 02.jpeg 03.tif 04.tiff 08.JPG 09.JPEG 10.TIF 11.TIFF sub/inner.jpg");
    const QStringList watermark = metadata + words("05.png 12.PNG");
    const QStringList sorting = watermark + words("06.gif 07.pdf 13.GIF 14.PDF");
    const QStringList every = sorting + words("15.Jpg 16.bmp 17.jp2 18.txt 19 20. 21.jpg.bak 22.Tiff "
                                              "sub/My.app/packed.jpg sub/Lib.photoslibrary/deep/p.png");
    row(Operation::Standard, "renameDir", every);
    row(Operation::Standard, "sortDir", sorting);
    row(Operation::Standard, "WatermarkDir", watermark);
    row(Operation::Ordering, "EMMDir", metadata);
    row(Operation::Ordering, "renameDir", every);
    row(Operation::Ordering, "batchSortImages", sorting);
    row(Operation::Ordering, "sortDir", sorting);
}

void InputCollection::takesFromAFolderWhatTheKeywordTakes()
{
    QFETCH(Operation, operation);
    QFETCH(QString, actionType);
    QFETCH(QStringList, expected);
    make(words(
        "01.jpg 02.jpeg 03.tif 04.tiff 05.png 06.gif 07.pdf 08.JPG 09.JPEG 10.TIF 11.TIFF 12.PNG 13.GIF 14.PDF 15.Jpg "
        "16.bmp 17.jp2 18.txt 19 20. 21.jpg.bak 22.Tiff .hidden.jpg .hiddenFolder/inside.jpg sub/inner.jpg "
        "sub/My.app/packed.jpg sub/Lib.photoslibrary/deep/p.png empty.jpg/"));
    expected.sort();
    QCOMPARE(collectFolder(operation, actionType), expected);
}

void InputCollection::givesAnEmptyListForAFolderOfFolders()
{
    make({QStringLiteral("a/b/c/"), QStringLiteral("pictures.jpg/")});
    accept({root()});
    const QVariant result = m_toolBox.hOpenDialogFiles(QStringLiteral("renameDir"));
    QVERIFY(!result.isNull());
    QCOMPARE(result.toStringList(), QStringList());
}

void InputCollection::tellsSpellingsApart()
{
    make(words("a.JPG b.Jpg c.bmp d.pdf"));
    QCOMPARE(collectFolder(Operation::Standard, QStringLiteral("sortDir")), words("a.JPG d.pdf"));
    QCOMPARE(collectFolder(Operation::Ordering, QStringLiteral("batchSortImages")), words("a.JPG d.pdf"));
}

void InputCollection::doesNotLookIntoAFolderNamedAsTheBrowsersSettings()
{
    make(words(".DS_Store/a.jpg .ds_store/b.jpg sub/.Ds_Store seen.jpg"));
    QCOMPARE(collectFolder(Operation::Standard, QStringLiteral("renameDir")), words("seen.jpg"));
}

void InputCollection::listsPathsBelowTheChosenFolder()
{
    make({QStringLiteral("Größe 5½/写真 😀.jpg")});
    accept({root() + u'/'});
    QCOMPARE(m_toolBox.hOpenDialogFiles(QStringLiteral("sortDir")).toStringList(),
             QStringList(root() + QStringLiteral("/Größe 5½/写真 😀.jpg")));
}

void InputCollection::takesTheFirstOfSeveralFolders()
{
    make(words("one/a.jpg two/b.jpg"));
    accept({root() + QStringLiteral("/two"), root() + QStringLiteral("/one")});
    QCOMPARE(m_toolBox.hOpenDialogFiles(QStringLiteral("sortDir")).toStringList(),
             QStringList(root() + QStringLiteral("/two/b.jpg")));
}

void InputCollection::startsAfreshOnEveryCall()
{
    accept(words("/a /b /c"));
    accept(words("/d"));
    accept({});
    QCOMPARE(m_toolBox.hOpenDialogFiles(QStringLiteral("rename")).toStringList(), words("/a /b /c"));
    QCOMPARE(m_toolBox.hOpenDialogFilesOC(QStringLiteral("rename")).toStringList(), words("/d"));
    QCOMPARE(m_toolBox.hOpenDialogFiles(QStringLiteral("sortDir")).toStringList(), QStringList());
}

void InputCollection::namesItsClassOperations()
{
    const QMetaObject &meta = cToolBox::staticMetaObject;
    const int info = meta.indexOfClassInfo("ClassOperations");
    QVERIFY(info >= 0);
    QSet<QByteArray> operations;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        operations.insert(meta.method(i).name());
    for (const QByteArray &name : QByteArray(meta.classInfo(info).value()).split(' '))
        QVERIFY2(operations.contains(name), name.constData());
    QCOMPARE(meta.constructorCount() > 0, true);
}

QUORLIN_TEST(InputCollection)
#include "tst_input_collection.moc"
