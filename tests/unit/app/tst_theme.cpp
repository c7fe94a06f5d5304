#include "app/setup/interface_folder.h"
#include "app/window/forms/ui_form.h"
#include "app/window/look/theme.h"
#include "tests/support/raised_text.h"
#include "tests/support/test_program.h"

#include <QCheckBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QHelpEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QToolTip>

#include <memory>

namespace {

const QString trap = QStringLiteral("a<h1>b.jpg");

QImage checkedBox()
{
    QCheckBox box(QStringLiteral("box"));
    box.setChecked(true);
    box.resize(120, 30);
    return box.grab().toImage();
}

void copyFolder(const QString &from, const QString &to)
{
    QVERIFY(QDir().mkpath(to));
    const QStringList names = QDir(from).entryList(QDir::Files);
    for (const QString &name : names)
        QVERIFY(QFile::copy(from + u'/' + name, to + u'/' + name));
}

} // namespace

/** What the application's style does for every window: colours, and texts that are only texts. */
class TestTheme : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    std::unique_ptr<window::Theme> m_theme;
    const QString m_themes = window::interfaceFolder() + QStringLiteral("/themes");

    void use(const QString &folder)
    {
        m_theme = std::make_unique<window::Theme>(*qobject_cast<QApplication *>(QCoreApplication::instance()), folder);
        m_theme->choose(QStringLiteral("light"));
    }

private Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral("stylesheet")));
        use(m_themes);
    }

    void fillsInAllOfItsSheet();

    void showsTextsAsTheyAre();
    void showsToolTipsAsTheyAre();
    void leavesPagesPages();
    void readsItsFilesFromAnyFolder_data();
    void readsItsFilesFromAnyFolder();
    void staysLegibleWithoutItsFiles();
    void takesNoOtherAppearance();
    void looksForScriptsWhereItIsInstalled();
    void pressesTheButtonThatHasTheFocus_data();
    void pressesTheButtonThatHasTheFocus();
};

void TestTheme::fillsInAllOfItsSheet()
{
    for (const char *name : {"light", "dark"}) {
        m_theme->choose(QString::fromLatin1(name));
        QVERIFY(!qApp->styleSheet().isEmpty());
        const auto left = QRegularExpression(QStringLiteral("@\\w+@")).match(qApp->styleSheet());
        QVERIFY2(!left.hasMatch(), qPrintable(left.captured()));
    }
}

void TestTheme::takesNoOtherAppearance()
{
    m_theme->choose(QStringLiteral("light"));
    QCOMPARE(raisedBy([this] { m_theme->choose(QStringLiteral("Dark")); }),
             QStringLiteral("TypeError: Expected \"light\", \"dark\" or \"system\" for name but received \"Dark\""));
    QCOMPARE(m_theme->choice(), QStringLiteral("light"));
}

void TestTheme::showsTextsAsTheyAre()
{
    QMessageBox question;
    question.setText(trap);
    question.setInformativeText(trap);
    question.show();
    QVERIFY(QTest::qWaitForWindowExposed(&question));
    int shown = 0;
    const QList<QLabel *> labels = question.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->text() != trap)
            continue;
        ++shown;
        QCOMPARE(label->textFormat(), Qt::PlainText);
    }
    QCOMPARE(shown, 2);
}

void TestTheme::showsToolTipsAsTheyAre()
{
    QWidget widget;
    widget.setToolTip(trap);
    widget.resize(50, 50);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    QHelpEvent asks(QEvent::ToolTip, QPoint(5, 5), widget.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&widget, &asks);
    QLabel *tip = nullptr;
    const QWidgetList all = QApplication::allWidgets();
    for (QWidget *each : all)
        if (each->inherits("QTipLabel"))
            tip = qobject_cast<QLabel *>(each);
    QVERIFY(tip);
    QCOMPARE(tip->text(), trap);
    QCOMPARE(tip->textFormat(), Qt::PlainText);
    QToolTip::hideText();
}

void TestTheme::leavesPagesPages()
{
    QLabel page;
    page.setTextFormat(Qt::RichText);
    page.ensurePolished();
    QCOMPARE(page.textFormat(), Qt::RichText);
}

void TestTheme::readsItsFilesFromAnyFolder_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"ü", "it's", "say \"a\"", "a & b", "100%20", "a) b(", "a#b", "a;b{}"})
        QTest::newRow(name) << QString::fromUtf8(name);
}

void TestTheme::readsItsFilesFromAnyFolder()
{
    QFETCH(QString, name);
    const QImage expected = checkedBox();
    const QString folder = m_folder.filePath(name);
    copyFolder(m_themes, folder);
    use(folder);
    QVERIFY(checkedBox() == expected);
    QVERIFY(QFile::remove(folder + QStringLiteral("/check-dark.svg")));
    use(folder);
    QVERIFY(checkedBox() != expected); // the mark is what makes the difference
}

void TestTheme::staysLegibleWithoutItsFiles()
{
    use(m_folder.filePath(QStringLiteral("missing")));
    const QPalette palette = QApplication::palette();
    const int contrast =
        qAbs(palette.color(QPalette::Window).lightness() - palette.color(QPalette::WindowText).lightness());
    QVERIFY2(contrast > 100, qPrintable(QString::number(contrast)));
    QVERIFY(palette.color(QPalette::Window) != QColor(Qt::magenta));
    QVERIFY(window::Theme::color(QStringLiteral("text")) != QColor(Qt::magenta));
}

/** Only a program within its build runs the scripts of the source: elsewhere somebody else may have made that folder. */
void TestTheme::looksForScriptsWhereItIsInstalled()
{
    QCOMPARE(window::interfaceFolderOf(m_folder.filePath(QStringLiteral("bin"))),
             m_folder.filePath(QStringLiteral("share/quorlin/interface")));
    QVERIFY(
        QFile::exists(window::interfaceFolderOf(QCoreApplication::applicationDirPath()) + QStringLiteral("/main.js")));
    QVERIFY(QDir().mkpath(m_folder.filePath(QStringLiteral("share/quorlin/interface"))));
    QVERIFY(QFile(m_folder.filePath(QStringLiteral("share/quorlin/interface/main.js"))).open(QIODevice::WriteOnly));
    QCOMPARE(window::interfaceFolderOf(m_folder.filePath(QStringLiteral("bin"))),
             m_folder.filePath(QStringLiteral("share/quorlin/interface")));
}

void TestTheme::pressesTheButtonThatHasTheFocus_data()
{
    QTest::addColumn<QString>("form");
    QTest::addColumn<QString>("button");
    QTest::newRow("new version") << QStringLiteral("new-version/new-version.ui") << QStringLiteral("newVersionClose");
    QTest::newRow("preferences") << QStringLiteral("preferences/preferences.ui") << QStringLiteral("libraryChange");
}

void TestTheme::pressesTheButtonThatHasTheFocus()
{
    QFETCH(QString, form);
    QFETCH(QString, button);
    QObject owner;
    const auto loaded =
        window::Form::load(window::interfaceFolder() + QStringLiteral("/windows/") + form, nullptr, &owner);
    QVERIFY(loaded);
    const std::unique_ptr<QWidget> root((*loaded)->root());
    int pressed = 0;
    const QList<QPushButton *> buttons = root->findChildren<QPushButton *>();
    for (const QPushButton *each : buttons)
        connect(each, &QPushButton::clicked, this, [&, each] { pressed += each->objectName() == button ? 1 : 100; });
    root->show();
    QVERIFY(QTest::qWaitForWindowActive(root.get()));
    auto *focused = root->findChild<QPushButton *>(button);
    focused->setFocus();
    QTest::keyClick(focused, Qt::Key_Return);
    QTest::keyClick(focused, Qt::Key_Enter, Qt::KeypadModifier);
    QCOMPARE(pressed, 2);
}

QUORLIN_GUI_TEST(TestTheme)
#include "tst_theme.moc"
