#include "tests/gui/support/window_tour.h"
#include "tests/support/test_program.h"

#include "app/window/controls/segmented_control.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTest>

namespace {

constexpr int shortWord = 5; ///< letters; words no longer than this may be part of others

const char *const actionNames[] = {"resize", "crop", "turn", "round", "background", "watermark", "recipe", "convert",
                                   "rename", "sort", "hand", "web",   "contact",    "metadata",  "fields", "log"};

/** Every field of outputs, and of the operations that have a profile or a resolution. */
const char *const recipe = R"({"quorlin": 1, "operations": [
      {"do": "resize", "width": 10, "unit": "mm", "dpi": 300}, {"do": "profile", "to": "sRGB"}],
    "outputs": [{"quality": 80, "dpi": 300}, {"lossless": true}, {"type": "jpeg", "profile": "Display P3"},
      {"type": "webp", "lossless": true}, {"type": "avif", "quality": 60}, {"type": "jxl"}, {"type": "jp2", "dpi": 72},
      {"type": "png", "profile": "gray"}, {"type": "tiff"}, {"type": "gif"}, {"type": "bmp"}, {"type": "pdf"}]})";

/** The column of a language in the table of the glossary under "Words that need a tooltip"; cells may hold several words. */
QStringList codecWords(int column)
{
    QFile file(QStringLiteral(QUORLIN_GUI_SCRIPTS "/../../docs/glossary.md"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s", qPrintable(file.errorString()));
    const QString section = QString::fromUtf8(file.readAll())
                                .section(QStringLiteral("## Words that need a tooltip\n"), 1)
                                .section(QStringLiteral("\n## "), 0, 0);
    QStringList words;
    for (const QString &line : section.split(u'\n'))
        if (line.startsWith(u'|') && !line.startsWith(QLatin1String("|---")))
            words += line.section(u'|', column + 1, column + 1).trimmed().split(QStringLiteral(", "));
    return words.mid(1); // the language
}

QRegularExpression anyOf(const QStringList &words)
{
    QStringList parts;
    for (const QString &word : words) {
        const QString part = QRegularExpression::escape(word);
        parts.append(word.size() > shortWord ? part : QStringLiteral("(?<!\\w)%1(?!\\w)").arg(part));
    }
    return QRegularExpression(parts.join(u'|'), QRegularExpression::CaseInsensitiveOption |
                                                    QRegularExpression::UseUnicodePropertiesOption);
}

QStringList namesOf(QWidget &control)
{
    QStringList names = {control.accessibleName()};
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&control);
    for (const auto &[label, relation] : accessible->relations(QAccessible::Label))
        if (label)
            names.append(label->text(QAccessible::Name));
    return names;
}

/** Everything that a control says of itself but its tooltip; nothing for what is no control. */
QStringList textsOf(QWidget &control)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(&control))
        return namesOf(control) + QStringList{QString(button->text()).remove(u'&')};
    if (const auto *segments = qobject_cast<const window::SegmentedControl *>(&control))
        return namesOf(control) + segments->segments();
    if (const auto *spin = qobject_cast<const QSpinBox *>(&control))
        return namesOf(control) + QStringList{spin->prefix(), spin->suffix(), spin->specialValueText()};
    if (const auto *spin = qobject_cast<const QDoubleSpinBox *>(&control))
        return namesOf(control) + QStringList{spin->prefix(), spin->suffix(), spin->specialValueText()};
    if (const auto *box = qobject_cast<const QComboBox *>(&control)) {
        QStringList texts = namesOf(control);
        for (int i = 0; i < box->count(); ++i)
            texts.append(box->itemText(i));
        return texts;
    }
    const bool isPartOfAnother = qobject_cast<const QAbstractSpinBox *>(control.parentWidget()) ||
                                 qobject_cast<const QComboBox *>(control.parentWidget());
    return qobject_cast<const QLineEdit *>(&control) && !isPartOfAnother ? namesOf(control) : QStringList();
}

bool isExplained(const QWidget &control, const QStringList &texts)
{
    const auto *segments = qobject_cast<const window::SegmentedControl *>(&control);
    if (segments && !segments->tips().isEmpty())
        return true;
    // One that repeats a name explains nothing.
    return !control.toolTip().isEmpty() && !texts.contains(control.toolTip(), Qt::CaseInsensitive);
}

} // namespace

/** Words of codecs are explained where they are chosen: no control has one without a tooltip. */
class CodecWords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wordsAreFound();
    void areExplainedInEveryPane_data();
    void areExplainedInEveryPane();

    void cleanup()
    {
        m_driver.reset();
        qunsetenv("QUORLIN_LANGUAGE");
    }

private:
    void look(const QString &place, const QWidget &window);
    void lookAtPanes();
    void lookAtRecipe();
    void lookAtSheets();

    std::unique_ptr<WindowDriver> m_driver;
    QRegularExpression m_words;
    QStringList m_problems;
    QSet<QString> m_found; ///< names of controls with such words
};

void CodecWords::wordsAreFound()
{
    const QRegularExpression english = anyOf(codecWords(0));
    for (const char *text : {"Quality", "JPEG quality, 1 to 9", "Lossless if the type allows it", "Progressive",
                             "Chroma subsampling", "4:2:0", "mozjpeg", "Deflate", "Effort", "Alpha", " dpi"})
        QVERIFY2(english.match(QString::fromLatin1(text)).hasMatch(), text);
    for (const char *text : {"Alphabetical", "Width", "Keep all", "File name"})
        QVERIFY2(!english.match(QString::fromLatin1(text)).hasMatch(), text);
    QVERIFY(anyOf(codecWords(1)).match(QStringLiteral("Farbprofil")).hasMatch());
    for (int column = 1; column < 4; ++column)
        QCOMPARE(codecWords(column).size(), codecWords(0).size());

    QWidget window;
    auto *box = new QComboBox(&window);
    box->addItems({QStringLiteral("Small"), QStringLiteral("Lossless")});
    m_words = english;
    look(QStringLiteral("here"), window);
    QCOMPARE(m_problems.size(), 1);
    box->setToolTip(QStringLiteral("lossless"));
    look(QStringLiteral("here"), window);
    QCOMPARE(m_problems.size(), 2);
    box->setToolTip(QStringLiteral("Keeps every pixel"));
    look(QStringLiteral("here"), window);
    QCOMPARE(m_problems.size(), 2);
}

// Hidden controls have their texts already.
void CodecWords::look(const QString &place, const QWidget &window)
{
    // Named by people, or by those who made the font.
    static const QStringList names = {QStringLiteral("preset"), QStringLiteral("recipeChoice"),
                                      QStringLiteral("addToChoice"), QStringLiteral("pageFont")};
    for (QWidget *control : window.findChildren<QWidget *>()) {
        const QStringList texts = textsOf(*control);
        const QString said = texts.join(u'\n');
        if (names.contains(control->objectName()) || !m_words.match(said).hasMatch())
            continue;
        m_found.insert(control->objectName());
        if (!isExplained(*control, texts))
            m_problems.append(QStringLiteral("%1: %2 says %3 and has no tooltip that explains it")
                                  .arg(place, control->objectName(), m_words.match(said).captured()));
    }
}

void CodecWords::lookAtPanes()
{
    for (const char *action : actionNames) {
        m_driver->show(action);
        QCoreApplication::processEvents();
        look(QString::fromLatin1(action), m_driver->window());
    }
}

void CodecWords::lookAtRecipe()
{
    const QString path = m_driver->inputFolder() + QStringLiteral("/all.quorlin");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(recipe) > 0);
    file.close();
    m_driver->drop({path});
    const QList<QAbstractButton *> titles =
        m_driver->window().findChildren<QAbstractButton *>(QStringLiteral("cardTitle"));
    int cards = 0;
    for (QAbstractButton *title : titles) {
        if (!title->isVisible())
            continue;
        title->click();
        QCoreApplication::processEvents();
        look(title->text(), m_driver->window());
        cards += 1;
    }
    QCOMPARE(cards, 14);
}

void CodecWords::lookAtSheets()
{
    WindowTour tour(*m_driver, {1440, 900},
                    [this](const QString &place, const QWidget &window) { look(place, window); });
    tour.sheets();
    tour.panels();
}

void CodecWords::areExplainedInEveryPane_data()
{
    QTest::addColumn<int>("column");
    QTest::newRow("en") << 0;
    QTest::newRow("de") << 1;
    QTest::newRow("fr") << 2;
    QTest::newRow("nl") << 3;
}

void CodecWords::areExplainedInEveryPane()
{
    QFETCH(int, column);
    m_words = anyOf(codecWords(column));
    m_problems.clear();
    m_found.clear();
    qputenv("QUORLIN_LANGUAGE", QTest::currentDataTag());
    m_driver = WindowDriver::started();
    lookAtPanes();
    lookAtRecipe();
    lookAtSheets();
    m_problems.removeDuplicates();
    for (const QString &each : qAsConst(m_problems))
        qWarning("%s", qPrintable(each));
    QCOMPARE(m_problems.size(), 0);
    // The controls that certainly have such words were seen, in this language.
    for (const char *name : {"quality", "convertQuality", "dpi", "pageQuality", "pageProfile", "pageDpi", "webQuality",
                             "fieldCheck", "fieldChoice", "fieldNumber", "pubJPEGcompression"})
        QVERIFY2(m_found.contains(QString::fromLatin1(name)), name);
}

QUORLIN_GUI_TEST(CodecWords)

#include "tst_codec_words.moc"
