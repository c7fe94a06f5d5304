#include "app/script/ScriptEngine.h"
#include "app/window/preview/compare_preview.h"
#include "app/window/script_modules.h"
#include "image/convert.h"
#include "image/crop.h"
#include "image/types/output_types.h"
#include "jobs/services/recipe_service.h"
#include "platform/desktop/user_defaults.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QJSEngine>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using window::ComparePreview;
using window::CropFrameEditor;

namespace {

/** An operation of a recipe, as an edit. */
QVariantMap recipeOf(const QVariantMap &operation)
{
    return {{QStringLiteral("do"), QStringLiteral("recipe")},
            {QStringLiteral("path"), QStringLiteral("/a.png")},
            {QStringLiteral("operations"), QVariantList{operation}}};
}

QVariantMap cut(const QRect &part)
{
    return recipeOf({{QStringLiteral("do"), QStringLiteral("crop")},
                     {QStringLiteral("width"), part.width()},
                     {QStringLiteral("height"), part.height()},
                     {QStringLiteral("position"), QStringLiteral("top left")},
                     {QStringLiteral("offset"), QVariantList{part.x(), part.y()}}});
}

QVariantMap turn(double degrees)
{
    return recipeOf({{QStringLiteral("do"), QStringLiteral("turn")}, {QStringLiteral("degrees"), degrees}});
}

/** The recipe of one such edit, into a PNG file. */
QVariantMap recipeFor(const QVariantMap &edit)
{
    return {{QStringLiteral("quorlin"), 1},
            {QStringLiteral("operations"), edit.value(QStringLiteral("operations"))},
            {QStringLiteral("outputs"), QVariantList{QVariantMap{{QStringLiteral("type"), QStringLiteral("png")}}}}};
}

void useWorkers()
{
    jobs::WorkerDesk::useProgram(QStringLiteral(QUORLIN_WORKER));
}

QVariantMap wanted(const QVariantList &edits, QSize size, const char *message = "")
{
    return {{QStringLiteral("edits"), edits},
            {QStringLiteral("width"), size.width()},
            {QStringLiteral("height"), size.height()},
            {QStringLiteral("message"), QString::fromLatin1(message)}};
}

} // namespace

/** The preview of the window: what it shows, and how the frame on it is worked. */
class TestPreview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { m_preview.reset(); }
    void showsTheOriginalAndTheResult();
    void showsNoPictureLargerThanItIs();
    void showsSmallPicturesPixelForPixel();
    void fillsItsHalf();
    void saysWhatIsWrong();
    void refusesAnUnknownEdit();
    void makesOnlyTheLastResultThatWasAskedFor();
    void laysTransparentResultsOnALightPattern();
    void showsACropAtTheScaleOfTheOriginal();
    void estimatesTheFileAfterAWhile();
    void goesOnAfterAReaderThatCrashes();
    void movesTheFrameWithTheMouse();
    void sizesTheFrameWithTheMouse();
    void keepsTheRatioOfTheFrameWithShift();
    void worksTheFrameWithTheKeyboard();
    void leavesTheArrowKeysToTheListWithoutTheFrame();
    void showsTheOverlayUntilTheFrameMoves();
    void dimsWhatIsCutAway();
    void coversItsParent();
    void walksTheListAndClosesWhenItCoversTheWindow();
    void followsChangesOfALargePhoto();

private:
    QString path(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }
    bool show(const char *name);
    bool showResult(const QVariantMap &result);
    QColor at(const QPoint &point) { return m_preview->grab().toImage().pixelColor(point); }
    QPoint middleOfOriginal() const { return {m_preview->width() / 4, m_preview->height() / 2}; }
    QPoint middleOfResult() const { return {m_preview->width() * 3 / 4, m_preview->height() / 2}; }
    CropFrameEditor &cropFrame() { return *m_preview->findChild<CropFrameEditor *>(QStringLiteral("cropFrame")); }
    QJSValue value(const QString &text) { return m_scripts->engine().evaluate(text); }
    void setCropFrame(const QRect &frame, double ratio = 0);
    void drag(const QPointF &from, const QPoint &by, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    QTemporaryDir m_folder;
    std::unique_ptr<script::ScriptEngine> m_scripts;
    std::unique_ptr<ComparePreview> m_preview;
};

void TestPreview::initTestCase()
{
    useWorkers();
    QImage halves = pictures::plain(600, 400, Qt::red, QImage::Format_RGB888);
    for (int y = 0; y < 400; ++y)
        for (int x = 300; x < 600; ++x)
            halves.setPixelColor(x, y, Qt::blue);
    QVERIFY(halves.save(path("halves.png")));
    QVERIFY(pictures::plain(20, 10, Qt::green).save(path("small.png")));
    QVERIFY(pictures::plain(100, 100, QColor(0, 0, 0, 0)).save(path("clear.png")));
    m_scripts = std::make_unique<script::ScriptEngine>(window::windowServices());
}

void TestPreview::init()
{
    platform::removeUserDefault(QStringLiteral("myBounds"));
    m_preview = std::make_unique<ComparePreview>();
    m_preview->resize(800, 400);
    m_preview->show();
    m_scripts->engine().globalObject().setProperty(QStringLiteral("preview"), m_scripts->controlValue(m_preview.get()));
}

bool TestPreview::show(const char *name)
{
    QSignalSpy shown(m_preview.get(), &ComparePreview::pictureShown);
    m_preview->showPicture(path(name));
    return shown.wait(5000);
}

bool TestPreview::showResult(const QVariantMap &result)
{
    QSignalSpy shown(m_preview.get(), &ComparePreview::resultShown);
    m_preview->showResult(result);
    return shown.wait(5000);
}

void TestPreview::setCropFrame(const QRect &frame, double ratio)
{
    m_preview->setCropFrame({{QStringLiteral("x"), frame.x()},
                             {QStringLiteral("y"), frame.y()},
                             {QStringLiteral("width"), frame.width()},
                             {QStringLiteral("height"), frame.height()},
                             {QStringLiteral("ratio"), ratio}});
}

void TestPreview::drag(const QPointF &from, const QPoint &by, Qt::KeyboardModifiers modifiers)
{
    const QPoint start = from.toPoint();
    QTest::mousePress(&cropFrame(), Qt::LeftButton, modifiers, start);
    for (int step = 1; step <= 4; ++step) {
        const QPointF to = start + QPointF(by) * step / 4;
        QMouseEvent move(QEvent::MouseMove, to, cropFrame().mapToGlobal(to), Qt::NoButton, Qt::LeftButton, modifiers);
        QCoreApplication::sendEvent(&cropFrame(), &move);
    }
    QTest::mouseRelease(&cropFrame(), Qt::LeftButton, modifiers, start + by);
}

void TestPreview::showsTheOriginalAndTheResult()
{
    QVERIFY(show("halves.png"));
    QVERIFY(showResult(wanted({cut(QRect(300, 0, 300, 400))}, QSize(300, 400))));
    QCOMPARE(at(middleOfOriginal() - QPoint(20, 0)), QColor(Qt::red));
    QCOMPARE(at(middleOfOriginal() + QPoint(20, 0)), QColor(Qt::blue));
    QCOMPARE(at(middleOfResult()), QColor(Qt::blue));
}

void TestPreview::showsNoPictureLargerThanItIs()
{
    QVERIFY(show("small.png"));
    QVERIFY(showResult(wanted({}, QSize(20, 10))));
    for (const QPoint &middle : {middleOfOriginal(), middleOfResult()}) {
        QCOMPARE(at(middle + QPoint(9, 4)), QColor(Qt::green));
        QVERIFY(at(middle + QPoint(12, 0)) != QColor(Qt::green));
    }
}

void TestPreview::showsSmallPicturesPixelForPixel()
{
    const QImage fine = pictures::gradient(200, 100).convertToFormat(QImage::Format_RGB32);
    QVERIFY(fine.save(path("fine.png")));
    QVERIFY(show("fine.png"));
    QVERIFY(showResult(wanted({turn(180)}, QSize(200, 100))));
    const QImage seen = m_preview->grab().toImage().convertToFormat(QImage::Format_RGB32);
    QCOMPARE(seen.copy(QRect(middleOfOriginal() - QPoint(100, 50), fine.size())), fine);
    QCOMPARE(seen.copy(QRect(middleOfResult() - QPoint(100, 50), fine.size())), fine.mirrored(true, true));
}

void TestPreview::fillsItsHalf()
{
    QVERIFY(show("small.png"));
    QSignalSpy shown(m_preview.get(), &ComparePreview::pictureShown);
    m_preview->setFill(true);
    QVERIFY(shown.wait(5000));
    QCOMPARE(at(QPoint(200, 60)), QColor(Qt::green));
    QCOMPARE(at(QPoint(3, 200)), QColor(Qt::green));
}

void TestPreview::saysWhatIsWrong()
{
    QVERIFY(show("halves.png"));
    m_preview->showResult(wanted({}, QSize(), "cannot be made"));
    QTRY_VERIFY(at(middleOfResult()) != QColor(Qt::blue));
    m_preview->setTitles(QStringLiteral("Original"), QStringLiteral("Result"));
    m_preview->setCaptions(QStringLiteral("600 px"), QStringLiteral("300 px"));
    m_preview->setNotes(QStringLiteral("the profile is not kept"));
    QVERIFY(m_preview->accessibleDescription().contains(QStringLiteral("the profile is not kept")));
}

void TestPreview::refusesAnUnknownEdit()
{
    const QJSValue error = value(QStringLiteral(
        "(() => { try { preview.showResult({ edits: [{ do: 'melt' }], width: 1, height: 1 }); return 'none'; }"
        "catch (e) { return e.name + ': ' + e.message; } })()"));
    QCOMPARE(error.toString(), QStringLiteral("TypeError: Expected an edit of the preview but received \"melt\""));
    const QJSValue fine = value(QStringLiteral(
        "preview.showResult({ edits: [{ do: 'recipe', path: '/a.png', operations: [{ do: 'turn', degrees: 90 }] }, "
        "{ do: 'lay', color: '#ffffff' }, { do: 'flatten' }], width: 9, height: 9, type: 'public.png', quality: '', "
        "recipe: { quorlin: 1 }, message: '' })"));
    QVERIFY2(!fine.isError(), qPrintable(fine.toString()));
}

void TestPreview::makesOnlyTheLastResultThatWasAskedFor()
{
    QVERIFY(show("halves.png"));
    QSignalSpy shown(m_preview.get(), &ComparePreview::resultShown);
    for (int degrees = 1; degrees < 90; ++degrees)
        m_preview->showResult(wanted({turn(degrees)}, QSize(100, 100)));
    m_preview->showResult(wanted({cut(QRect(0, 0, 200, 200))}, QSize(200, 200)));
    QVERIFY(shown.wait(5000));
    QTest::qWait(50);
    QCOMPARE(shown.size(), 1);
    QCOMPARE(at(middleOfResult()), QColor(Qt::red));
}

void TestPreview::laysTransparentResultsOnALightPattern()
{
    QVERIFY(show("clear.png"));
    QVERIFY(showResult(wanted({}, QSize(100, 100))));
    QVERIFY(at(middleOfResult()).lightness() > 200);
    QVERIFY(at(middleOfOriginal()).lightness() > 200);
    QVERIFY(at(middleOfResult()) != at(middleOfResult() + QPoint(8, 0)));
}

void TestPreview::showsACropAtTheScaleOfTheOriginal()
{
    QVERIFY(show("halves.png"));
    setCropFrame(QRect(300, 100, 150, 200));
    QVERIFY(showResult(wanted({cut(QRect(300, 100, 150, 200))}, QSize(150, 200))));
    const double scale = cropFrame().shownFrame().width() / 150;
    QVERIFY(scale < 1);
    const int half = int(75 * scale);
    // The crop begins where red ends, and is cut out of a rendition that was made smaller by a kernel of three pixels to either
    // side. From the middle of the third pixel on, the rest of the kernel is 0.0045 of the whole: one step of 255 of the red
    // beside it. From the fourth on there is none, and at the other side, where the picture goes on in blue, nowhere.
    QCOMPARE(at(middleOfResult() + QPoint(half - 2, 0)), QColor(Qt::blue));
    QCOMPARE(at(middleOfResult() - QPoint(half - 4, 0)), QColor(Qt::blue));
    const QColor third = at(middleOfResult() - QPoint(half - 2, 0));
    QVERIFY2(third.red() <= 1 && third.green() == 0 && third.blue() >= 254, qPrintable(third.name()));
    QVERIFY(at(middleOfResult() + QPoint(half + 3, 0)) != QColor(Qt::blue));
    QSignalSpy shown(m_preview.get(), &ComparePreview::resultShown);
    m_preview->setCropFrame({});
    QVERIFY(shown.wait(5000));
    QCOMPARE(at(middleOfResult() + QPoint(half + 3, 0)), QColor(Qt::blue));
}

void TestPreview::estimatesTheFileAfterAWhile()
{
    QVERIFY(show("halves.png"));
    QSignalSpy estimated(m_preview.get(), &ComparePreview::resultEstimated);
    QVariantMap result = wanted({}, QSize(600, 400));
    result.insert(QStringLiteral("type"), QStringLiteral("public.bmp"));
    for (int i = 0; i < 10; ++i) {
        QVERIFY(showResult(result));
        QTest::qWait(20);
    }
    QCOMPARE(m_preview->estimatedBytes(), -1.0);
    QVERIFY(estimated.wait(5000));
    QCOMPARE(estimated.size(), 1);
    QCOMPARE(estimated.first().first().toDouble(), 600 * 400 * 3 + 54.0);
    QCOMPARE(m_preview->estimatedBytes(), 600 * 400 * 3 + 54.0);
    result.insert(QStringLiteral("type"), QStringLiteral("public.jpeg"));
    result.insert(QStringLiteral("quality"), QStringLiteral("8"));
    QVERIFY(showResult(result));
    QVERIFY(estimated.wait(5000));
    // As large as the file that a conversion writes.
    image::Conversion conversion = {path("halves.png"), image::OutputType::Jpeg,
                                    image::qualityForCode(QStringLiteral("8")), path("halves.jpg")};
    QVERIFY(image::convertFile(conversion));
    QCOMPARE(estimated.last().first().toDouble(), double(QFileInfo(conversion.destination).size()));
    QCOMPARE(m_preview->estimatedBytes(), estimated.last().first().toDouble());
    m_preview->resize(500, 300); // which is no business of the file
    QVERIFY(estimated.wait(5000));
    QCOMPARE(estimated.last().first().toDouble(), double(QFileInfo(conversion.destination).size()));
    m_preview->resize(800, 400);
    QVERIFY(estimated.wait(5000));
    result.insert(QStringLiteral("type"), QStringLiteral("com.adobe.pdf"));
    QVERIFY(showResult(result));
    QCOMPARE(m_preview->estimatedBytes(), -1.0);
    QVERIFY(estimated.wait(5000));
    conversion.type = image::OutputType::Pdf;
    conversion.destination = path("halves.pdf");
    QVERIFY(image::convertFile(conversion));
    QCOMPARE(m_preview->estimatedBytes(), double(QFileInfo(conversion.destination).size()));
    result.insert(QStringLiteral("recipe"), recipeFor(cut(QRect(0, 0, 9, 9))));
    QVERIFY(showResult(result));
    QVERIFY(estimated.wait(5000));
    QVERIFY(jobs::RecipeService()
                .make(path("halves.png"), recipeFor(cut(QRect(0, 0, 9, 9))), path("nine.png"))
                .value(QStringLiteral("path"))
                .toString() == path("nine.png"));
    QCOMPARE(m_preview->estimatedBytes(), double(QFileInfo(path("nine.png")).size()));
}

void TestPreview::goesOnAfterAReaderThatCrashes()
{
    QVERIFY(QFile::copy(path("halves.png"), path("read-crash.png")));
    jobs::WorkerDesk::useProgram(QStringLiteral(QUORLIN_TRIAL_WORKER));
    m_preview = std::make_unique<ComparePreview>();
    m_preview->resize(800, 400);
    m_preview->show();
    QVERIFY(show("halves.png"));
    QVERIFY(showResult(wanted({}, QSize(600, 400))));
    QCOMPARE(m_preview->shownProblem(), QString());
    m_preview->showPicture(path("read-crash.png"));
    QTRY_COMPARE_WITH_TIMEOUT(m_preview->shownProblem(),
                              QStringLiteral("This picture cannot be shown: its reader crashed"), 10000);
    QVERIFY(at(middleOfOriginal() - QPoint(20, 40)) != QColor(Qt::red));
    QVERIFY(show("halves.png"));
    QCOMPARE(m_preview->shownProblem(), QString());
    QCOMPARE(at(middleOfOriginal() - QPoint(20, 0)), QColor(Qt::red));
    m_preview.reset();
    useWorkers();
}

void TestPreview::movesTheFrameWithTheMouse()
{
    QVERIFY(show("halves.png"));
    setCropFrame(QRect(100, 100, 200, 200));
    QSignalSpy edited(m_preview.get(), &ComparePreview::cropFrameEdited);
    const QRectF shown = cropFrame().shownFrame();
    const double scale = 200 / shown.width();
    drag(shown.center() + QPointF(12, 15), QPoint(20, -10));
    QVERIFY(edited.size() >= 2);
    const QRect frame = cropFrame().frame();
    QCOMPARE(edited.last(), (QVariantList{frame.x(), frame.y(), 200, 200}));
    QVERIFY(std::abs(frame.x() - (100 + 20 * scale)) <= 1.5);
    QVERIFY(std::abs(frame.y() - (100 - 10 * scale)) <= 1.5);
    drag(cropFrame().shownFrame().center() + QPointF(12, 15), QPoint(-2000, -2000));
    QCOMPARE(cropFrame().frame(), QRect(0, 0, 200, 200));
}

void TestPreview::sizesTheFrameWithTheMouse()
{
    QVERIFY(show("halves.png"));
    setCropFrame(QRect(100, 100, 200, 200));
    const QRectF shown = cropFrame().shownFrame();
    drag(shown.bottomRight(), QPoint(2000, 2000));
    QCOMPARE(cropFrame().frame(), QRect(100, 100, 500, 300));
    setCropFrame(QRect(100, 100, 200, 200), 1);
    drag(shown.bottomRight(), QPoint(2000, 0));
    QCOMPARE(cropFrame().frame(), QRect(100, 100, 300, 300));
    QSignalSpy edited(m_preview.get(), &ComparePreview::cropFrameEdited);
    setCropFrame(QRect(300, 200, 60, 40));
    drag(QPointF(2, 2), QPoint(50, 50)); // beside the frame
    QCOMPARE(edited.size(), 0);
    QCOMPARE(cropFrame().frame(), QRect(300, 200, 60, 40));
}

void TestPreview::keepsTheRatioOfTheFrameWithShift()
{
    QVERIFY(show("halves.png"));
    setCropFrame(QRect(100, 100, 100, 50));
    drag(cropFrame().shownFrame().bottomRight(), QPoint(60, 3), Qt::ShiftModifier);
    const QRect frame = cropFrame().frame();
    QVERIFY(frame.width() > 150);
    QVERIFY(std::abs(frame.width() - 2 * frame.height()) <= 1);
}

void TestPreview::worksTheFrameWithTheKeyboard()
{
    QVERIFY(show("halves.png"));
    setCropFrame(QRect(100, 100, 200, 200));
    QCOMPARE(cropFrame().accessibleName(), QStringLiteral("Crop frame"));
    QCOMPARE(cropFrame().accessibleDescription(),
             QStringLiteral("200 × 200 pixels, 100 from the left, 100 from the top"));
    cropFrame().setFocus();
    QSignalSpy edited(m_preview.get(), &ComparePreview::cropFrameEdited);
    QSignalSpy stepped(m_preview.get(), &ComparePreview::stepRequested);
    QTest::keyClick(&cropFrame(), Qt::Key_Right);
    QTest::keyClick(&cropFrame(), Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&cropFrame(), Qt::Key_Left, Qt::AltModifier);
    QTest::keyClick(&cropFrame(), Qt::Key_Up, Qt::AltModifier | Qt::ShiftModifier);
    QCOMPARE(cropFrame().frame(), QRect(101, 110, 199, 190));
    QCOMPARE(edited.size(), 4);
    QCOMPARE(stepped.size(), 0);
    QVERIFY(cropFrame().accessibleDescription().startsWith(QStringLiteral("199 × 190")));
}

void TestPreview::leavesTheArrowKeysToTheListWithoutTheFrame()
{
    QVERIFY(show("halves.png"));
    setCropFrame(QRect(100, 100, 200, 200));
    QSignalSpy stepped(m_preview.get(), &ComparePreview::stepRequested);
    QSignalSpy large(m_preview.get(), &ComparePreview::largePreviewRequested);
    QTest::keyClick(m_preview.get(), Qt::Key_Right);
    QTest::keyClick(m_preview.get(), Qt::Key_Left);
    QCOMPARE(stepped.size(), 2);
    QCOMPARE(cropFrame().frame(), QRect(100, 100, 200, 200));
    cropFrame().setFocus();
    QTest::keyClick(&cropFrame(), Qt::Key_Space);
    QCOMPARE(large.size(), 1);
}

void TestPreview::showsTheOverlayUntilTheFrameMoves()
{
    QVERIFY(show("halves.png"));
    setCropFrame(QRect(100, 50, 400, 300));
    QImage green(600, 400, QImage::Format_RGBA8888);
    green.fill(Qt::green);
    const platform::Picture picture(platform::Bitmap::fromImage(green));
    m_preview->setOverlay(picture);
    QCOMPARE(at(middleOfOriginal()), QColor(Qt::green));
    cropFrame().setFocus();
    QTest::keyClick(&cropFrame(), Qt::Key_Right);
    QVERIFY(at(middleOfOriginal()) != QColor(Qt::green));
    m_preview->setOverlay(picture);
    QCOMPARE(at(middleOfOriginal()), QColor(Qt::green));
    m_preview->setOverlay({});
    QVERIFY(at(middleOfOriginal()) != QColor(Qt::green));
}

void TestPreview::dimsWhatIsCutAway()
{
    QVERIFY(show("halves.png"));
    setCropFrame(QRect(200, 100, 300, 200));
    const QRectF shown = cropFrame().shownFrame().translated(cropFrame().pos());
    QCOMPARE(at(shown.topLeft().toPoint() + QPoint(15, 15)), QColor(Qt::red));
    const QColor beside = at(shown.topLeft().toPoint() + QPoint(-20, 15));
    QVERIFY(beside.red() > 60 && beside.red() < 200 && beside.green() == 0);
}

void TestPreview::coversItsParent()
{
    QWidget parent;
    parent.resize(300, 200);
    auto *large = new ComparePreview(&parent);
    large->setShowsResult(false);
    large->coverParent();
    QCOMPARE(large->geometry(), QRect(0, 0, 300, 200));
    parent.resize(640, 480);
    parent.show();
    QCOMPARE(large->geometry(), QRect(0, 0, 640, 480));
}

void TestPreview::walksTheListAndClosesWhenItCoversTheWindow()
{
    QWidget parent;
    parent.resize(700, 500);
    auto *large = new ComparePreview(&parent);
    large->setShowsResult(false);
    large->coverParent();
    parent.show();
    QSignalSpy shown(large, &ComparePreview::pictureShown);
    large->showPicture(path("halves.png"));
    QVERIFY(shown.wait(5000));
    QCOMPARE(large->grab().toImage().pixelColor(345, 250), QColor(Qt::red));
    QCOMPARE(large->grab().toImage().pixelColor(355, 250), QColor(Qt::blue));
    QSignalSpy stepped(large, &ComparePreview::stepRequested);
    QSignalSpy closed(large, &ComparePreview::closeRequested);
    QTest::keyClick(large, Qt::Key_Right);
    QTest::keyClick(large, Qt::Key_Left);
    QTest::keyClick(large, Qt::Key_Escape);
    QCOMPARE(stepped, (QList<QVariantList>{{1}, {-1}}));
    QCOMPARE(closed.size(), 1);
}

// Prints how long it takes, and judges nothing: a busy machine would decide.
void TestPreview::followsChangesOfALargePhoto()
{
    QImage large(6000, 4000, QImage::Format_RGB888);
    for (int y = 0; y < large.height(); ++y)
        for (int x = 0; x < large.width(); ++x)
            large.setPixel(x, y, qRgb((x * 7 + y) & 255, (x ^ y) & 255, (y / 16) & 255));
    QVERIFY(large.save(path("large.jpg"), "JPEG", 90));
    m_preview->resize(1440, 600);
    QElapsedTimer clock;
    clock.start();
    QVERIFY(show("large.jpg"));
    qInfo("24 megapixels on the screen after %lld ms", clock.elapsed());
    const QList<QPair<const char *, QVariantMap>> changes = {
        {"turn", wanted({turn(7)}, QSize(6442, 4701))},
        {"cut", wanted({cut(QRect(100, 100, 3000, 2000))}, QSize(3000, 2000))},
        {"round", wanted({recipeOf({{QStringLiteral("do"), QStringLiteral("round")}, {QStringLiteral("radius"), 400}})},
                         QSize(6000, 4000))},
    };
    for (const auto &[name, result] : changes) {
        clock.restart();
        QVERIFY(showResult(result));
        m_preview->grab();
        qInfo("%s: on the screen %lld ms after the change", name, clock.elapsed());
    }
    const auto box = image::drawCropBox(QSize(6000, 4000), image::cropBox({1500, 1000, 3000, 2000}, QSize(6000, 4000)));
    QVERIFY(box);
    setCropFrame(QRect(1500, 1000, 3000, 2000));
    clock.restart();
    m_preview->setOverlay(*box);
    m_preview->grab();
    qInfo("the crop frame of 24 megapixels: on the screen after %lld ms", clock.elapsed());
    m_preview->setCropFrame({});
    clock.restart();
    int shown = 0;
    QObject::connect(m_preview.get(), &ComparePreview::resultShown, m_preview.get(), [&shown] { ++shown; });
    for (int step = 0; step < 60; ++step) {
        m_preview->showResult(wanted({turn(step)}, QSize(7000, 6000)));
        QTest::qWait(2);
    }
    QTRY_VERIFY(shown > 0);
    qInfo("60 changes of a slider: %d results in %lld ms", shown, clock.elapsed());
}

QUORLIN_GUI_TEST(TestPreview)
#include "tst_preview.moc"
