#include "app/script/ScriptEngine.h"
#include "app/window/forms/ui_form.h"
#include "app/window/shell.h"
#include "app/window/start_up.h"
#include "tests/support/test_program.h"

#include <QDirIterator>
#include <QFile>
#include <QJSEngine>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace {

QString interfacePath(const QString &file)
{
    return QStringLiteral(QUORLIN_INTERFACE_FOLDER "/") + file;
}

QStringList filesEnding(const QString &ending)
{
    QStringList found;
    QDirIterator walk(QStringLiteral(QUORLIN_INTERFACE_FOLDER), {QStringLiteral("*") + ending}, QDir::Files,
                      QDirIterator::Subdirectories);
    while (walk.hasNext())
        found.append(walk.next());
    return found;
}

QString textOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList captures(const QString &text, const char *pattern)
{
    QStringList found;
    auto matches = QRegularExpression(QString::fromLatin1(pattern)).globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured(1));
    return found;
}

} // namespace

class InterfaceModules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("QUORLIN_INTERFACE", QUORLIN_INTERFACE_FOLDER);
        m_startUp = std::make_unique<window::StartUp>(*qobject_cast<QApplication *>(QCoreApplication::instance()));
    }

    void cleanupTestCase() { m_startUp.reset(); }

    void everyModuleCanBeImported_data()
    {
        QTest::addColumn<QString>("path");
        const QStringList modules = filesEnding(QStringLiteral(".js"));
        QVERIFY(modules.size() > 10);
        for (const QString &path : modules)
            // These two act when they are imported: one opens the window, the other works off its arguments and ends.
            if (!path.endsWith(QLatin1String("interface/main.js")) && !path.endsWith(QLatin1String("/batch.js")) &&
                !path.endsWith(QLatin1String("/web-page.js")))
                QTest::newRow(qPrintable(path.mid(int(qstrlen(QUORLIN_INTERFACE_FOLDER))))) << path;
    }

    void everyModuleCanBeImported()
    {
        QFETCH(QString, path);
        const auto module = m_startUp->scripts().importFile(path);
        QVERIFY2(module.has_value(), module ? "" : qPrintable(module.error().message));
    }

    /** These work in the process that calls them, and are there for scripts of users. */
    void callsNothingThatOpensPicturesHere()
    {
        const QSet<QString> operations = {QStringLiteral("hShowCropBox"),    QStringLiteral("getPictureDPI"),
                                          QStringLiteral("convertXtoPixel"), QStringLiteral("hiDoNothing"),
                                          QStringLiteral("btEMDchooseFile"), QStringLiteral("btEMDchooseFolder"),
                                          QStringLiteral("printService")};
        const QSet<QString> classes = {QStringLiteral("ZtImageHandling"), QStringLiteral("cMConversion"),
                                       QStringLiteral("mMeta"), QStringLiteral("cEditMetaData"),
                                       QStringLiteral("cPrint")};
        const QString contract = textOf(interfacePath(QStringLiteral("quorlin.d.ts")));
        for (const QString &name : operations + classes)
            QVERIFY2(contract.contains(name), qPrintable(name));
        for (const QString &path : filesEnding(QStringLiteral(".js")))
            for (const QString &word : captures(textOf(path), R"(\b(\w+)\b)"))
                QVERIFY2(!operations.contains(word) && !classes.contains(word), qPrintable(path + u' ' + word));
    }

    void everyControlThatAModuleNamesIsInItsForm_data()
    {
        QTest::addColumn<QStringList>("modules");
        QTest::addColumn<QStringList>("forms");
        const QStringList mainParts = {
            QStringLiteral("windows/main/main-window.js"), QStringLiteral("windows/main/main-controls.js"),
            QStringLiteral("windows/main/input.js"),       QStringLiteral("windows/main/action-page.js"),
            QStringLiteral("windows/main/status-bar.js"),  QStringLiteral("windows/main/preview-side.js"),
            QStringLiteral("windows/main/support-bar.js")};
        QTest::newRow("main window") << mainParts << QStringList{QStringLiteral("windows/main/main.ui")};
        QTest::newRow("log") << QStringList{QStringLiteral("actions/log/log-page.js")}
                             << QStringList{QStringLiteral("actions/log/log-page.ui")};
        QTest::newRow("sorting by hand") << QStringList{QStringLiteral("actions/hand/hand-page.js")}
                                         << QStringList{QStringLiteral("actions/hand/hand-page.ui"),
                                                        QStringLiteral("windows/main/main.ui")};
        QTest::newRow("metadata") << QStringList{QStringLiteral("actions/metadata/metadata-page.js")}
                                  << QStringList{QStringLiteral("actions/metadata/metadata-page.ui"),
                                                 QStringLiteral("windows/main/main.ui")};
        QTest::newRow("preferences") << QStringList{QStringLiteral("windows/preferences/preferences.js")}
                                     << QStringList{QStringLiteral("windows/preferences/preferences.ui")};
        for (const char *pane :
             {"actions/resize/resize-pane", "actions/crop/crop-pane", "actions/turn/turn-pane",
              "actions/round/round-pane", "actions/background/background-pane", "actions/watermark/watermark-pane",
              "actions/hand/hand-pane", "actions/shared/output-pane", "presets/preset-pane"}) {
            const QString base = QLatin1String(pane);
            QTest::newRow(pane) << QStringList{base + QStringLiteral(".js")}
                                << QStringList{base + QStringLiteral(".ui")};
        }
        // What all panes share must be in each; one represents all.
        QTest::newRow("pane") << QStringList{QStringLiteral("actions/shared/pane.js")}
                              << QStringList{QStringLiteral("actions/resize/resize-pane.ui")};
    }

    void everyControlThatAModuleNamesIsInItsForm()
    {
        QFETCH(QStringList, modules);
        QFETCH(QStringList, forms);
        QStringList known;
        for (const QString &file : forms) {
            const auto loaded = window::Form::load(interfacePath(file), nullptr, nullptr);
            QVERIFY(loaded);
            const std::unique_ptr<window::Form> form(*loaded);
            known += form->names();
            known.append(form->root()->objectName());
            delete form->root();
        }
        int named = 0;
        for (const QString &module : modules) {
            const QStringList names = captures(
                textOf(interfacePath(module)),
                R"re((?:control|setItems|chooseValue|setMenu|setIcon|setLook|place|setSplit|form\.value|this\.number|this\.check|this\.color|this\.segments|this\.choice|this\.units|this\.say|showLength)\("(\w+)")re");
            named += int(names.size());
            for (const QString &name : names)
                QVERIFY2(known.contains(name), qPrintable(module + QStringLiteral(" names ") + name));
        }
        QVERIFY(named > 2);
    }

    void namesOfModulesAreUniqueSoThatTheirTextsAre()
    {
        QStringList seen;
        for (const QString &path : filesEnding(QStringLiteral(".js"))) {
            const QString text = textOf(path);
            if (!text.contains(QLatin1String("qsTr(")))
                continue;
            const QString base = QFileInfo(path).baseName();
            QVERIFY2(!seen.contains(base), qPrintable(base));
            seen.append(base);
        }
    }

    void bothThemesNameTheSameColorsAndAllThatTheStyleUses()
    {
        const auto colors = [](const char *name) {
            const QString path = interfacePath(QStringLiteral("themes/") + QLatin1String(name));
            return QJsonDocument::fromJson(textOf(path).toUtf8()).object().keys();
        };
        QCOMPARE(colors("light.json"), colors("dark.json"));
        const QStringList used = captures(textOf(interfacePath(QStringLiteral("themes/base.qss"))), "@(\\w+)@");
        QVERIFY(used.size() > 20);
        for (const QString &name : used)
            QVERIFY2(name == QLatin1String("folder") || name == QLatin1String("name") ||
                         colors("light.json").contains(name),
                     qPrintable(name));
    }

    void aControlThatIsMissingIsAnErrorThatNamesIt()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("probe.js"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("import { shell } from "
                   "'quorlin/shell';\n\nshell.loadForm('actions/shared/output-pane.ui').control('nobody');\n");
        file.close();
        const auto module = m_startUp->scripts().importFile(path);
        QVERIFY(!module.has_value());
        QVERIFY2(module.error().message.contains(QLatin1String("nobody")), qPrintable(module.error().message));
        QVERIFY2(module.error().message.contains(QLatin1String("probe.js:3")), qPrintable(module.error().message));
    }

    void aWindowDoesNotGoIntoItself()
    {
        const QString made = QStringLiteral("import { shell } from 'quorlin/shell';\n"
                                            "const form = shell.loadForm('windows/main/main.ui');\n");
        QVERIFY(runScript(made + QStringLiteral("try { form.place('centre', form); throw 'placed'; }\n"
                                                "catch (e) { if (!(e instanceof TypeError)) throw e; }\n"))
                    .isEmpty());
    }

    void aDialogIsNoSheetOfItself()
    {
        const QString problem =
            runScript(QStringLiteral("import { shell } from 'quorlin/shell';\n"
                                     "const dialog = shell.loadForm('windows/preferences/preferences.ui');\n"
                                     "const host = shell.sheetHost(dialog);\n"
                                     "const root = dialog.control(dialog.names().length > 0 ? ROOT : '');\n"
                                     "host.sheet = root;\nif (host.sheet !== null) throw 'opened';\n"));
        QCOMPARE(problem, QString());
    }

    void aJobIsAGenerator()
    {
        const QString problem = runScript(
            QStringLiteral("import { shell } from 'quorlin/shell';\n"
                           "for (const each of [{}, null, undefined, 3, 'x', { next: 3 }]) {\n"
                           "    const job = shell.job();\n"
                           "    try { job.start(each, null, null); throw 'started'; }\n"
                           "    catch (e) { if (!(e instanceof TypeError)) throw e; }\n"
                           "    if (job.running) throw 'runs';\n"
                           "}\n"
                           "const endless = shell.job();\n"
                           "endless.start({ next: () => undefined }, null, how => shell.theme.setObjectName(how));\n"
                           "Function('return this')().endless = endless;\n"));
        QCOMPARE(problem, QString());
        const QJSValue job = m_startUp->scripts().engine().globalObject().property(QStringLiteral("endless"));
        QTRY_VERIFY(!job.property(QStringLiteral("running")).toBool());
    }

private:
    /** The error of a module with this text; empty if it has none. */
    QString runScript(QString text)
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("probe.js"));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            return QStringLiteral("the script cannot be written");
        file.write(text.replace(QStringLiteral("ROOT"), QStringLiteral("'preferencesWindow'")).toUtf8());
        file.close();
        const auto module = m_startUp->scripts().importFile(path);
        return module ? QString() : module.error().message;
    }

    std::unique_ptr<window::StartUp> m_startUp;
};

QUORLIN_GUI_TEST(InterfaceModules)

#include "tst_interface_modules.moc"
