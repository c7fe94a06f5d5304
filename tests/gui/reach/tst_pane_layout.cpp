#include "tests/gui/support/window_driver.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include "app/models/log_model.h"
#include "app/window/controls/combo_box.h"
#include "app/window/controls/segmented_control.h"
#include "app/window/log/log_table.h"
#include "app/window/preview/compare_preview.h"
#include "app/window/slots/slot_list.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QDir>
#include <QEnterEvent>
#include <QFontMetrics>
#include <QGridLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSet>
#include <QTest>
#include <QTimer>

namespace {

const char *const actionNames[] = {"resize",  "crop",   "turn", "round", "background", "watermark",
                                   "convert", "rename", "sort", "web",   "contact",    "fields"};

QRect placeIn(const QWidget &window, const QWidget &widget)
{
    return {widget.mapTo(&window, QPoint(0, 0)), widget.size()};
}

/** A control of one line, like the text beside it. */
bool isOneLine(const QWidget &widget)
{
    return qobject_cast<const QComboBox *>(&widget) || qobject_cast<const QAbstractSpinBox *>(&widget) ||
           qobject_cast<const QLineEdit *>(&widget);
}

/** What is beside the label of a field: the field, or the row of controls that contains it. */
const QWidget &rowOf(const QWidget &field)
{
    const QWidget *row = &field;
    while (row->parentWidget() && !qobject_cast<QGridLayout *>(row->parentWidget()->layout()))
        row = row->parentWidget();
    return row->parentWidget() ? *row : field;
}

/** A folder that the user chose. */
bool isPath(const QString &text)
{
    return text.startsWith(u'~') || text.startsWith(u'/');
}

/** Names that users gave: of fonts, and of files of theirs. */
bool isNamedByOthers(const QComboBox &box)
{
    return box.objectName() == QLatin1String("markFont") || box.objectName() == QLatin1String("markPicture") ||
           box.objectName() == QLatin1String("pattern");
}

} // namespace

/** The layout of the panes at 1280 x 720: labels beside their fields, and nothing that moves or is cut off. */
class PaneLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        m_driver.reset();
        qunsetenv("QUORLIN_LANGUAGE");
    }

    void labelsAndFieldsLineUp_data() { languages(); }
    void labelsAndFieldsLineUp();
    void theNameOfAPresetLinesUp_data() { languages(); }
    void theNameOfAPresetLinesUp();
    void everyChoiceCanBeRead_data() { languages(); }
    void everyChoiceCanBeRead();
    void everyChoiceOfAWindowCanBeRead_data() { languages(); }
    void everyChoiceOfAWindowCanBeRead();
    void theTextsOfACardLineUp();
    void theEndOfALongNameIsSeen();
    void theUnitsOfACropStandBesideItsSizes();
    void nothingMovesWhenTheResultTakesTwoLines_data();
    void nothingMovesWhenTheResultTakesTwoLines();
    void titlesOfQuestionsHaveRoom();
    void allOfANoteUnderAResultIsSeen();
    void aSortedPictureIsDescribedWhole_data() { languages(); }
    void aSortedPictureIsDescribedWhole();
    void anActionOfTheLogIsSeenWhole_data() { languages(); }
    void anActionOfTheLogIsSeenWhole();

private:
    static void languages()
    {
        QTest::addColumn<QString>("language");
        for (const char *language : {"en", "de", "fr", "nl"})
            QTest::addRow("%s", language) << QString::fromLatin1(language);
    }

    void begin(const QString &language)
    {
        qputenv("QUORLIN_LANGUAGE", language.toLatin1());
        m_driver = WindowDriver::started();
        m_driver->window().resize(1280, 720);
        QVERIFY(pictures::plain(600, 400, Qt::darkCyan).save(m_driver->inputFolder() + QStringLiteral("/a.png")));
        m_driver->drop({m_driver->inputFolder()});
        QCOMPARE(m_driver->pictures().count(), 1);
    }

    void show(const char *action)
    {
        m_driver->show(action);
        settle();
    }

    static void settle()
    {
        for (int i = 0; i < 5; ++i)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        constexpr int deepest = 8;
        for (int i = 0; i < deepest; ++i)
            QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    }

    QWidget &settings() { return *m_driver->control<QWidget>("settings"); }
    QRect placeOf(const char *name) { return placeIn(m_driver->window(), *m_driver->control<QWidget>(name)); }

    /** Labels of the settings that precede a one-line field. */
    QList<QLabel *> labels()
    {
        QList<QLabel *> found;
        for (QLabel *label : settings().findChildren<QLabel *>())
            if (label->isVisible() && label->property("role") == QStringLiteral("field") && label->buddy() &&
                label->buddy()->isVisible() && isOneLine(*label->buddy()))
                found.append(label);
        return found;
    }

    QStringList misplaced(const QString &action);
    void openCards();

    std::unique_ptr<WindowDriver> m_driver;
};

QStringList PaneLayout::misplaced(const QString &action)
{
    QStringList found;
    const QWidget &window = m_driver->window();
    QSet<int> ends;
    for (const QLabel *label : labels()) {
        const QRect place = placeIn(window, *label);
        const QRect field = placeIn(window, rowOf(*label->buddy()));
        ends.insert(place.right());
        if (qAbs(place.center().y() - field.center().y()) > 1 || !(label->alignment() & Qt::AlignVCenter))
            found.append(QStringLiteral("%1: %2 is %3 px above its field")
                             .arg(action, label->objectName())
                             .arg(field.center().y() - place.center().y()));
        if (field.left() <= place.right() || field.left() - place.right() > 16)
            found.append(QStringLiteral("%1: %2 is not beside its field").arg(action, label->objectName()));
    }
    if (ends.size() > 1)
        found.append(action + QStringLiteral(": the labels do not end in one line"));
    return found;
}

void PaneLayout::labelsAndFieldsLineUp()
{
    QFETCH(QString, language);
    begin(language);
    QStringList problems;
    int seen = 0;
    for (const char *action : actionNames) {
        show(action);
        problems += misplaced(QString::fromLatin1(action));
        seen += int(labels().size());
    }
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u'\n')));
    QVERIFY2(seen > 40, qPrintable(QString::number(seen)));
}

void PaneLayout::theNameOfAPresetLinesUp()
{
    QFETCH(QString, language);
    begin(language);
    for (const char *action : {"resize", "contact"}) {
        show(action);
        m_driver->control<QPushButton>("presetMenu")->menu()->actions().at(1)->trigger();
        settle();
        QVERIFY(m_driver->control<QLineEdit>("presetName")->isVisible());
        const QStringList problems = misplaced(QString::fromLatin1(action));
        QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u'\n')));
        m_driver->trigger("presetEscape");
    }
}

void PaneLayout::openCards()
{
    const auto cards = [this] { return settings().findChildren<QPushButton *>(QStringLiteral("cardTitle")); };
    for (int i = 0; i < cards().size(); ++i)
        cards().at(i)->click();
    settle();
    QVERIFY(cards().size() > 4);
}

// The chosen entry is not all: the others are read as well when the box is open, and are as wide.
void PaneLayout::everyChoiceCanBeRead()
{
    QFETCH(QString, language);
    begin(language);
    QStringList problems;
    int seen = 0;
    QList<const char *> names(std::begin(actionNames), std::end(actionNames));
    names.append("recipe"); // which has recipes instead of presets
    for (const char *action : qAsConst(names)) {
        show(action);
        const bool isRecipe = qstrcmp(action, "recipe") == 0;
        const auto *preset = m_driver->control<window::ComboBox>(isRecipe ? "recipeChoice" : "preset");
        QVERIFY2(preset->isVisible() && preset->count() >= 4, action); // those supplied are there
        if (isRecipe)
            openCards();
        for (const auto *box : settings().findChildren<window::ComboBox *>())
            for (int i = 0; i < box->count() && box->isVisible() && !isNamedByOthers(*box); ++i) {
                // Changed settings put a dot before the name.
                const QString text = (box == preset && i > 0 ? QStringLiteral("• ") : QString()) + box->itemText(i);
                ++seen;
                if (!isPath(text) && box->fontMetrics().horizontalAdvance(text) > box->roomForText())
                    problems.append(QStringLiteral("%1, %2: %3 (%4 of %5)")
                                        .arg(QString::fromLatin1(action), box->objectName(), text)
                                        .arg(box->roomForText())
                                        .arg(box->fontMetrics().horizontalAdvance(text)));
            }
    }
    problems.removeDuplicates();
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u'\n')));
    QVERIFY2(seen > 200, qPrintable(QString::number(seen)));
}

void PaneLayout::everyChoiceOfAWindowCanBeRead()
{
    QFETCH(QString, language);
    begin(language);
    show("resize");
    QStringList problems;
    int seen = 0;
    for (const char *action : {"clocksAction", "listPropertiesAction", "preferencesAction"}) {
        m_driver->trigger(action);
        settle();
        for (QWidget *each : QApplication::topLevelWidgets()) {
            if (!each->isVisible() || each == &m_driver->window())
                continue;
            for (const auto *box : each->findChildren<window::ComboBox *>())
                for (int i = 0; i < box->count() && box->isVisible(); ++i, ++seen)
                    if (box->fontMetrics().horizontalAdvance(box->itemText(i)) > box->roomForText())
                        problems.append(box->objectName() + QStringLiteral(": ") + box->itemText(i));
            each->close();
        }
    }
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u'\n')));
    QVERIFY2(seen > 25, qPrintable(QString::number(seen)));
}

// The title is the text of a button; those of outputs have no box to tick before them.
void PaneLayout::theTextsOfACardLineUp()
{
    begin(QStringLiteral("en"));
    int seen = 0;
    for (const char *action : {"recipe", "rename"}) {
        show(action);
        if (qstrcmp(action, "rename") == 0)
            m_driver->choose("preset", QStringLiteral("=Date and place"));
        settle();
        for (const auto *title : settings().findChildren<QPushButton *>(QStringLiteral("cardTitle"))) {
            const auto *summary =
                title->parentWidget()->parentWidget()->findChild<QWidget *>(QStringLiteral("cardSummary"));
            if (!title->isVisible() || !summary->isVisible())
                continue;
            constexpr int frameAndPaddingPx = 5;
            QCOMPARE(placeIn(m_driver->window(), *summary).left(),
                     placeIn(m_driver->window(), *title).left() + frameAndPaddingPx);
            ++seen;
        }
    }
    QVERIFY2(seen >= 8, qPrintable(QString::number(seen)));
}

// Names that users give are not bound to fit.
void PaneLayout::theEndOfALongNameIsSeen()
{
    begin(QStringLiteral("en"));
    show("resize");
    auto *box = m_driver->control<window::ComboBox>("preset");
    box->setToolTip(QString());
    const auto seenWith = [box](const QString &name) {
        box->addItem(name);
        box->setCurrentIndex(box->count() - 1);
        QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
        QCoreApplication::sendEvent(box, &enter);
        return box->grab().toImage();
    };
    const QString name = QStringLiteral("Pictures of the wedding of Anna and Tom for the album, part ");
    QVERIFY(box->fontMetrics().horizontalAdvance(name) > box->roomForText());
    const QImage first = seenWith(name + u'1');
    QCOMPARE(box->toolTip(), name + u'1');
    QVERIFY(seenWith(name + u'2') != first);
    QVERIFY(seenWith(name + u'1') == first);
}

void PaneLayout::theUnitsOfACropStandBesideItsSizes()
{
    begin(QStringLiteral("de"));
    show("crop");
    auto *mode = m_driver->control<window::SegmentedControl>("cropMode");
    mode->setSelectedSegment(1);
    Q_EMIT mode->chosen(1);
    settle();
    const QRect height = placeOf("cropHeight");
    const QRect unit = placeOf("unit");
    QVERIFY(m_driver->control<QWidget>("unit")->isVisible());
    QVERIFY2(qAbs(unit.center().y() - height.center().y()) <= 1, qPrintable(QString::number(unit.center().y())));
    QVERIFY(unit.left() > height.right() && unit.left() - height.right() < 20);
    QCOMPARE(placeOf("cropWidth").center().y(), height.center().y());
}

void PaneLayout::nothingMovesWhenTheResultTakesTwoLines_data()
{
    QTest::addColumn<QString>("action");
    for (const char *action : {"resize", "crop", "turn", "round", "background", "watermark", "convert", "web"})
        QTest::addRow("%s", action) << QString::fromLatin1(action);
}

void PaneLayout::nothingMovesWhenTheResultTakesTwoLines()
{
    QFETCH(QString, action);
    begin(QStringLiteral("en"));
    show(qPrintable(action));
    auto *result = m_driver->control<QLabel>("resultText");
    QVERIFY(result->isVisible());
    const auto placesWith = [&](const QString &text) {
        result->setText(text);
        settle();
        QList<QRect> places;
        for (const QWidget *each : settings().findChildren<QWidget *>())
            if (each->isVisible())
                places.append(placeIn(m_driver->window(), *each));
        return places;
    };
    const QString line = QStringLiteral("4000 × 3000 px");
    QString lines = line;
    while (result->fontMetrics().horizontalAdvance(lines) < result->width() + 10)
        lines += u' ' + line;
    const QList<QRect> before = placesWith(line);
    QCOMPARE(placesWith(lines), before);
    QVERIFY(result->heightForWidth(result->width()) <= result->height());
}

// The text of a question may be shorter than its title, which the frame of the window shows.
void PaneLayout::titlesOfQuestionsHaveRoom()
{
    begin(QStringLiteral("en"));
    const QString title = QStringLiteral("Umbenennung von zwölftausend Dateien rückgängig machen");
    int width = 0;
    QTimer look;
    connect(&look, &QTimer::timeout, this, [&width] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            width = box->width();
            box->reject();
        }
    });
    look.start(20);
    m_driver->startUp().shell().ask(
        {{QStringLiteral("title"), title},
         {QStringLiteral("text"), QStringLiteral("Go on?")},
         {QStringLiteral("detail"), QString()},
         {QStringLiteral("check"), QString()},
         {QStringLiteral("initial"), 0},
         {QStringLiteral("escape"), 1},
         {QStringLiteral("buttons"), QVariantList{QStringLiteral("A"), QStringLiteral("B")}}});
    QFont bold = QApplication::font("QMessageBox");
    bold.setBold(true);
    const int needed = QFontMetrics(bold).horizontalAdvance(title);
    QVERIFY2(width >= needed + 100, qPrintable(QStringLiteral("%1 of %2").arg(width).arg(needed)));
}

// The difference at the end of a long note is painted, and the caption above it makes room.
void PaneLayout::allOfANoteUnderAResultIsSeen()
{
    begin(QStringLiteral("en"));
    auto *preview = m_driver->control<window::ComparePreview>("preview");
    const auto seenWith = [&](const QString &caption, const QString &notes) {
        preview->setCaptions(QString(), caption);
        preview->setNotes(notes);
        return preview->grab().toImage();
    };
    const QString note = QStringLiteral("JPEG has no transparency: transparent parts become #ff8800 · ").repeated(3);
    QVERIFY(preview->fontMetrics().horizontalAdvance(note) > preview->width());
    QVERIFY(seenWith(QString(), note + QStringLiteral("white")) != seenWith(QString(), note + QStringLiteral("black")));
    QVERIFY(seenWith(QStringLiteral("1 px"), note) != seenWith(QStringLiteral("9 px"), note));
}

// Beside its name, which may be shortened.
void PaneLayout::aSortedPictureIsDescribedWhole()
{
    QFETCH(QString, language);
    begin(language);
    QVERIFY(pictures::plain(2400, 1600, Qt::darkCyan).save(m_driver->inputFolder() + QStringLiteral("/b.png")));
    m_driver->drop({m_driver->inputFolder()});
    QVERIFY(QDir().mkpath(m_driver->folder() + QStringLiteral("/Mountains")));
    show("hand");
    auto *slots = m_driver->control<window::SlotList>("handSlots");
    Q_EMIT slots->foldersDropped({m_driver->folder() + QStringLiteral("/Mountains")});
    settle();
    QTest::keyClick(m_driver->control<QWidget>("handView"), Qt::Key_1);
    m_driver->pictures().step(-1);
    settle();
    for (const char *name : {"handDone", "handFacts", "handPlace"}) {
        const auto *label = m_driver->control<QLabel>(name);
        QVERIFY2(label->isVisible() && !label->text().isEmpty(), name);
        QVERIFY2(label->width() >= label->sizeHint().width(), qPrintable(QStringLiteral("%1: %2 of %3 px")
                                                                             .arg(label->text())
                                                                             .arg(label->width())
                                                                             .arg(label->sizeHint().width())));
    }
}

void PaneLayout::anActionOfTheLogIsSeenWhole()
{
    QFETCH(QString, language);
    begin(language);
    show("resize");
    m_driver->click("startButton");
    m_driver->waitForSummary();
    show("log");
    const auto *table = m_driver->control<window::LogTable>("logTable");
    QVERIFY(m_driver->waitFor([table] { return table->model()->rowCount() >= 1; }));
    for (int row = 0; row < table->model()->rowCount(); ++row) {
        const QString words = table->model()->index(row, window::LogModel::Action).data().toString();
        const int needed = table->fontMetrics().horizontalAdvance(words);
        QVERIFY2(!words.isEmpty() && table->columnWidth(window::LogModel::Action) >= needed + 15, qPrintable(words));
    }
}

QUORLIN_GUI_TEST(PaneLayout)

#include "tst_pane_layout.moc"
