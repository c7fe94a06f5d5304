#include "app/script/ScriptEngine.h"
#include "app/window/shell.h"
#include "app/window/start_up.h"
#include "platform/controls/panels.h"
#include "tests/support/test_program.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QDirIterator>
#include <QJSEngine>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace {

QStringList formFiles()
{
    const QDir folder(QStringLiteral(QUORLIN_INTERFACE_FOLDER));
    QStringList found;
    QDirIterator walk(folder.path(), {QStringLiteral("*.ui")}, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext())
        found.append(folder.relativeFilePath(walk.next()));
    return found;
}

/** Nobody is there to choose anything. */
class NoPanels : public platform::PanelProvider
{
public:
    platform::PanelAnswer run(const platform::PanelRequest &) override { return {}; }
};

} // namespace

/** Everything that scripts of windows reach, with values of every wrong kind; see wrong-window-values.js. */
class TestWrongWindowValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void areAnsweredByTheContract();
    void sayThatAControlIsGone();
    void callHandlersWithWhatIsTold();
    void reportWhatKeptFunctionsThrow();

private:
    QJSValue import(const QString &name, const QString &text);
    void setGlobal(const char *name, const QJSValue &value);

    QTemporaryDir m_folder;
    std::unique_ptr<window::StartUp> m_startUp;
    QString m_problem;
};

void TestWrongWindowValues::initTestCase()
{
    // Relative paths of the script end here, and no other program is found.
    QVERIFY(QDir::setCurrent(m_folder.path()));
    qputenv("PATH", m_folder.path().toLocal8Bit());
    qputenv("QUORLIN_INTERFACE", QUORLIN_INTERFACE_FOLDER);
    m_startUp = std::make_unique<window::StartUp>(*qobject_cast<QApplication *>(QCoreApplication::instance()));
    platform::setPanelProvider(std::make_unique<NoPanels>());
}

QJSValue TestWrongWindowValues::import(const QString &name, const QString &text)
{
    QFile file(m_folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
        return {};
    file.close();
    const auto module = m_startUp->scripts().importFile(file.fileName());
    m_problem = module ? QString() : module.error().message;
    return module.value_or(QJSValue());
}

void TestWrongWindowValues::setGlobal(const char *name, const QJSValue &value)
{
    m_startUp->scripts().engine().globalObject().setProperty(QString::fromLatin1(name), value);
}

void TestWrongWindowValues::areAnsweredByTheContract()
{
    const QJSValue lost = import(
        QStringLiteral("dead.js"),
        QStringLiteral(
            "import { shell } from 'quorlin/shell';\n"
            "export const forms = ['windows/about/about.ui', 'windows/info/info.ui'].map(f => shell.loadForm(f));\n"
            "export const controls = [forms[0].control('aboutClose'), forms[0].control('aboutTitle'),"
            " forms[0].control('aboutWindow'), forms[1].control('infoDescription')];\n"));
    QVERIFY2(m_problem.isEmpty(), qPrintable(m_problem));
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *each : windows)
        if (each->objectName() == QStringLiteral("aboutWindow") || each->objectName() == QStringLiteral("infoSheet"))
            delete each;
    QJSEngine &engine = m_startUp->scripts().engine();
    setGlobal("deadForms", lost.property(QStringLiteral("forms")));
    setGlobal("deadControls", lost.property(QStringLiteral("controls")));
    setGlobal("formFiles", engine.toScriptValue(formFiles()));
    setGlobal("isLong", tests::isSlowRun());
    // Questions are answered, so that the script continues.
    QTimer answers;
    connect(&answers, &QTimer::timeout, this, [] {
        if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
            dialog->reject();
        else if (QWidget *popup = QApplication::activePopupWidget())
            popup->close();
    });
    answers.start(1);
    const auto module = m_startUp->scripts().importFile(QStringLiteral(QUORLIN_GUI_SCRIPTS "/wrong-window-values.js"));
    QVERIFY2(module.has_value(), qPrintable(module ? QString() : module.error().message));
    const QJSValue result = module->property(QStringLiteral("result"));
    // What was put off happens now, too.
    QTest::qWait(500);
    answers.stop();
    const auto text = [&result](const char *name) { return result.property(QString::fromLatin1(name)).toString(); };
    qInfo("%s calls to %s objects, %s taken; slowest %s, %s ms", qPrintable(text("calls")), qPrintable(text("kinds")),
          qPrintable(text("taken")), qPrintable(text("slowest").left(100)), qPrintable(text("slowestMs")));
    qInfo("%s", qPrintable(text("controls")));
    QCOMPARE(result.property(QStringLiteral("faults")).toVariant().toStringList(), QStringList());
    QVERIFY(result.property(QStringLiteral("kinds")).toInt() >= 35);
    QVERIFY(result.property(QStringLiteral("calls")).toInt() >= 10000);
    QVERIFY2(result.property(QStringLiteral("slowestMs")).toInt() < 5000, qPrintable(text("slowest").left(200)));
}

void TestWrongWindowValues::sayThatAControlIsGone()
{
    const QJSValue module =
        import(QStringLiteral("gone.js"), QStringLiteral("import { shell } from 'quorlin/shell';\n"
                                                         "const form = shell.loadForm('windows/info/info.ui');\n"
                                                         "const label = form.control('infoTitle');\n"
                                                         "export const isOne = form.control('infoTitle') === label;\n"
                                                         "export function use() { label.text = 'x'; }\n"
                                                         "export function find() { form.control('infoTitle'); }\n"));
    QVERIFY2(m_problem.isEmpty(), qPrintable(m_problem));
    QVERIFY(module.property(QStringLiteral("isOne")).toBool());
    const auto use = [&](const char *name) {
        const auto called = m_startUp->scripts().call(module.property(QString::fromLatin1(name)), {});
        return called ? QString() : called.error().message.section(QStringLiteral(": "), 1);
    };
    QCOMPARE(use("use"), QString());
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *each : windows)
        if (each->objectName() == QStringLiteral("infoSheet"))
            delete each;
    QCOMPARE(use("use"), QStringLiteral("TypeError: text is called on a Label that is gone"));
    QVERIFY(use("find").startsWith(QStringLiteral("ReferenceError: ")));
}

void TestWrongWindowValues::callHandlersWithWhatIsTold()
{
    QStringList uncaught;
    const auto connection = connect(&m_startUp->scripts(), &script::ScriptEngine::uncaughtError, this,
                                    [&uncaught](const QString &message) { uncaught.append(message); });
    const QJSValue module =
        import(QStringLiteral("handlers.js"),
               QStringLiteral("import { shell } from 'quorlin/shell';\n"
                              "const form = shell.loadForm('windows/info/info.ui');\n"
                              "const button = form.control('infoClose'), text = form.control('infoDescription');\n"
                              "export const told = [];\n"
                              "button.clicked.connect((...values) => { told.push(values.length); });\n"
                              "button.toggled.connect((...values) => { told.push(values.join()); });\n"
                              "button.clicked.connect(() => { null.x; });\n"
                              "text.textChanged.connect((...values) => { told.push(values.length); });\n"
                              "button.checkable = true; button.click(); text.plainText = 'a';\n"));
    QVERIFY2(m_problem.isEmpty(), qPrintable(m_problem));
    QCOMPARE(module.property(QStringLiteral("told")).toVariant().toList(),
             (QVariantList{QStringLiteral("true"), 0, 0}));
    QCOMPARE(uncaught.size(), 1);
    QVERIFY2(uncaught.first().startsWith(m_folder.filePath(QStringLiteral("handlers.js:7: TypeError: "))),
             qPrintable(uncaught.first()));
    disconnect(connection);
}

/** Functions that were left with a menu, a window or a timer. */
void TestWrongWindowValues::reportWhatKeptFunctionsThrow()
{
    QStringList uncaught;
    const auto connection = connect(&m_startUp->scripts(), &script::ScriptEngine::uncaughtError, this,
                                    [&uncaught](const QString &message) { uncaught.append(message); });
    import(QStringLiteral("kept.js"), QStringLiteral("import { shell } from 'quorlin/shell';\n"
                                                     "const form = shell.loadForm('windows/info/info.ui');\n"
                                                     "form.onClose(() => { throw new Error('closing'); });\n"
                                                     "form.show(); form.close();\n"
                                                     "shell.timer(() => { throw new Error('timer'); }).start(0);\n"
                                                     "Promise.reject(new Error('promise'));\n"));
    QVERIFY2(m_problem.isEmpty(), qPrintable(m_problem));
    QTRY_COMPARE(uncaught.size(), 3);
    uncaught.replaceInStrings(m_folder.filePath(QStringLiteral("kept.js")), QStringLiteral("FILE"));
    uncaught.sort();
    QCOMPARE(uncaught, (QStringList{QStringLiteral("FILE:3: Error: closing"), QStringLiteral("FILE:5: Error: timer"),
                                    QStringLiteral("FILE:6: Error: promise")}));
    disconnect(connection);
}

QUORLIN_GUI_TEST(TestWrongWindowValues)
#include "tst_wrong_window_values.moc"
