#include "tests/gui/support/window_tour.h"

#include "app/window/controls/search_menu.h"
#include "app/window/controls/segmented_control.h"

#include "platform/desktop/user_defaults.h"
#include "tests/support/test_pictures.h"
#include "tests/support/web_server.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {

const char *const actionNames[] = {"resize", "crop", "turn", "round", "background", "watermark", "recipe", "convert",
                                   "rename", "sort", "hand", "web",   "contact",    "metadata",  "fields", "log"};

/** How many values a control has that a person can choose by one click; 0 for other controls. */
int valuesOf(const QWidget &control)
{
    if (const auto *box = qobject_cast<const QComboBox *>(&control))
        return control.objectName() == QLatin1String("preset") ? 0 : box->count();
    if (const auto *segments = qobject_cast<const window::SegmentedControl *>(&control))
        return int(segments->segments().size());
    return qobject_cast<const QCheckBox *>(&control) ? 2 : 0;
}

int valueOf(const QWidget &control)
{
    if (const auto *box = qobject_cast<const QComboBox *>(&control))
        return box->currentIndex();
    if (const auto *segments = qobject_cast<const window::SegmentedControl *>(&control))
        return segments->selectedSegment();
    const auto *check = qobject_cast<const QCheckBox *>(&control);
    return check && check->isChecked() ? 1 : 0;
}

void setValue(QWidget &control, int value)
{
    if (auto *box = qobject_cast<QComboBox *>(&control)) {
        if (box->itemText(value).isEmpty())
            return;
        box->setCurrentIndex(value);
        Q_EMIT box->activated(value);
    } else if (auto *segments = qobject_cast<window::SegmentedControl *>(&control)) {
        segments->setSelectedSegment(value);
        Q_EMIT segments->chosen(value);
    } else if (auto *check = qobject_cast<QCheckBox *>(&control); check && check->isChecked() != (value == 1)) {
        check->click();
    }
}

} // namespace

WindowTour::WindowTour(WindowDriver &driver, QSize size, Look look)
    : m_driver(driver), m_size(size), m_look(std::move(look))
{
    QObject::connect(&m_questions, &QTimer::timeout, &m_questions, [this] { lookAtQuestion(); });
    m_questions.start(100);
    startAgain();
}

// Panels for files and folders are those of the toolkit; when one would open, a folder is chosen.
void WindowTour::startAgain()
{
    m_driver.startAgain();
    m_driver.window().resize(m_size);
    m_driver.answerPanels({m_driver.folder()});
}

void WindowTour::lookAtQuestion()
{
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (!box)
        return;
    m_look(QStringLiteral("question ") + box->windowTitle(), *box);
    box->reject();
}

void WindowTour::look(const QString &place)
{
    look(place, m_driver.window());
}

void WindowTour::look(const QString &place, QWidget &window)
{
    // Layouts of hidden rows take effect in the second round.
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    // A label that needs more lines asks the layout round it, which asks the next one.
    constexpr int deepest = 8;
    for (int i = 0; i < deepest; ++i)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    // The toolkit updates the bars of a list by a timer once its columns have changed.
    QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    m_look(place, window);
}

void WindowTour::addPictures()
{
    const QString folder = m_driver.folder() + QStringLiteral("/1");
    QDir().mkpath(folder);
    for (int i = 1; i <= 4; ++i)
        pictures::plain(600 + i, 400, Qt::darkCyan).save(folder + QStringLiteral("/%1.jpg").arg(i));
    QFile broken(folder + QStringLiteral("/5.jpg"));
    if (broken.open(QIODevice::WriteOnly))
        broken.write("?");
    QFile other(folder + QStringLiteral("/6.xyz"));
    if (other.open(QIODevice::WriteOnly))
        other.write("?");
    m_driver.drop({folder});
}

void WindowTour::actions()
{
    for (const char *name : actionNames) {
        m_driver.show(name);
        look(QString::fromLatin1(name) + QStringLiteral(" without pictures"));
    }
    addFolders();
    m_driver.show("resize");
    addPictures();
    for (const char *name : actionNames) {
        m_driver.show(name);
        look(QString::fromLatin1(name));
        QSet<QString> visited;
        visit(QString::fromLatin1(name), visited);
        if (qstrcmp(name, "rename") == 0)
            visitCards();
        if (qstrcmp(name, "recipe") == 0)
            visitOperations();
    }
    m_driver.show("resize");
    m_driver.trigger("clearAction");
}

// Sort by Hand shows more once there are folders to sort into.
void WindowTour::addFolders()
{
    QJsonArray slots;
    for (int i = 1; i <= 3; ++i) {
        const QString path = m_driver.folder() + QStringLiteral("/%1").arg(10 + i);
        if (i < 3)
            QDir().mkpath(path);
        slots.append(QJsonObject{{QStringLiteral("path"), path}, {QStringLiteral("label"), QString()}});
    }
    const QJsonObject settings = {{QStringLiteral("mode"), QStringLiteral("move")}, {QStringLiteral("slots"), slots}};
    platform::setUserDefault(QStringLiteral("Settings-hand"),
                             QString::fromUtf8(QJsonDocument(settings).toJson(QJsonDocument::Compact)));
    startAgain();
}

// Controls that appear with a value are visited while it is chosen.
void WindowTour::visit(const QString &place, QSet<QString> &visited)
{
    for (const char *area : {"settings", "pageHost", "besideHost"}) {
        const auto *host = m_driver.window().findChild<QWidget *>(QString::fromLatin1(area));
        for (QWidget *control : host->findChildren<QWidget *>())
            if (control->isVisible() && control->isEnabled() && valuesOf(*control) > 0 &&
                !visited.contains(control->objectName()) && !m_visited.contains(control->objectName()))
                visitValues(place, *control, visited);
    }
}

void WindowTour::visitValues(const QString &place, QWidget &control, QSet<QString> &visited)
{
    const QString name = control.objectName();
    visited.insert(name);
    // All actions share the output block.
    if (m_driver.window().findChild<QWidget *>(QStringLiteral("outputHost"))->isAncestorOf(&control))
        m_visited.insert(name);
    const int before = valueOf(control);
    for (int value = 0; value < valuesOf(control); ++value) {
        setValue(control, value);
        const QString here = QStringLiteral("%1, %2 %3").arg(place, name).arg(value);
        look(here);
        visit(here, visited);
    }
    setValue(control, before);
}

// Each kind of card, open.
void WindowTour::visitCards()
{
    auto *menu = m_driver.control<window::SearchMenu>("addMenu");
    const int kinds = menu->findChild<QListWidget *>()->count();
    for (int kind = 0; kind < qMax(1, kinds); ++kind) {
        m_driver.click("addStep");
        if (kind == 0)
            look(QStringLiteral("rename, menu of steps"), *menu);
        auto *field = menu->findChild<QLineEdit *>();
        for (int i = 0; i < kind; ++i)
            QTest::keyClick(field, Qt::Key_Down);
        QTest::keyClick(field, Qt::Key_Return);
        const QString place = QStringLiteral("rename, card %1").arg(kind);
        look(place);
        QSet<QString> visited;
        visit(place, visited);
        m_driver.click("cardDelete");
    }
}

// Each kind of operation, and the outputs, open.
void WindowTour::visitOperations()
{
    auto *menu = m_driver.control<window::SearchMenu>("operationMenu");
    const auto cards = [this] {
        return m_driver.control<QWidget>("settings")->findChildren<QPushButton *>(QStringLiteral("cardTitle"));
    };
    QSet<QString> visited;
    int kinds = 1;
    for (int kind = 0; kind < kinds; ++kind) {
        m_driver.click("addOperation");
        kinds = menu->findChild<QListWidget *>()->count();
        if (kind == 0)
            look(QStringLiteral("recipe, menu of operations"), *menu);
        auto *field = menu->findChild<QLineEdit *>();
        for (int i = 0; i < kind; ++i)
            QTest::keyClick(field, Qt::Key_Down);
        QTest::keyClick(field, Qt::Key_Return);
        const QString place = QStringLiteral("recipe, operation %1").arg(kind);
        look(place);
        visit(place, visited);
    }
    for (int card = 0; card < cards().size(); ++card) {
        cards().at(card)->click();
        const QString place = QStringLiteral("recipe, card %1").arg(card);
        look(place);
        visit(place, visited);
    }
}

void WindowTour::bars()
{
    m_driver.show("resize");
    for (const int entry : {1, 2}) {
        QAction *action = m_driver.control<QPushButton>("presetMenu")->menu()->actions().value(entry);
        if (action && action->isEnabled())
            action->trigger();
        look(QStringLiteral("naming a preset %1").arg(entry));
        m_driver.control<QLineEdit>("presetName")->setText(QStringLiteral("1'1"));
        look(QStringLiteral("a name that cannot be"));
        m_driver.trigger("presetEscape");
    }
    m_driver.control<QWidget>("supportBar")->show();
    look(QStringLiteral("asking for the support folder"));
    m_driver.click("supportLater");
}

// The first of those that come with the program; they have names in each language.
void WindowTour::choosePreset()
{
    auto *box = m_driver.control<QComboBox>("preset");
    for (int i = 0; i < box->count(); ++i)
        if (box->itemData(i).toString().startsWith(u'=')) {
            box->setCurrentIndex(i);
            Q_EMIT box->activated(i);
            return;
        }
}

void WindowTour::runs()
{
    addPictures();
    for (const char *name : {"resize", "convert", "rename"}) {
        m_driver.show(name);
        choosePreset();
        auto *start = m_driver.control<QPushButton>("startButton");
        m_driver.waitFor([start] { return start->isEnabled(); });
        m_driver.click("startButton");
        look(QString::fromLatin1(name) + QStringLiteral(" under way"));
        m_driver.waitForSummary();
        look(QString::fromLatin1(name) + QStringLiteral(" summary"));
        m_driver.click("dismissButton");
    }
    m_driver.show("log");
    look(QStringLiteral("log of runs"));
    m_driver.show("resize");
}

void WindowTour::visitSheet(const char *opens, bool isAction, const char *sheet, const char *closes)
{
    if (isAction)
        m_driver.trigger(opens);
    else
        m_driver.control<QPushButton>(opens)->click();
    // The one of a new version opens when the server has answered.
    m_driver.waitFor([] { return QApplication::activeModalWidget() != nullptr; });
    look(QString::fromLatin1(sheet), *m_driver.control<QDialog>(sheet));
    m_driver.click(closes);
}

void WindowTour::sheets()
{
    const WebServer server(WebServer::page("9.9;999999;1;2"));
    qputenv("QUORLIN_UPDATE_HOST", server.host().toLatin1());
    qputenv("QUORLIN_PRODUCT_PAGE", "https://example.org/quorlin");
    visitSheet("preferencesAction", true, "preferencesWindow", "preferencesDone");
    visitSheet("aboutAction", true, "aboutWindow", "aboutClose");
    visitSheet("updateAction", true, "newVersionWindow", "newVersionClose");
    for (const auto &[action, button] : {std::pair{"resize", "infoSimulation"},
                                         {"crop", "infoFolder"},
                                         {"turn", "infoPresets"},
                                         {"background", "infoPatterns"}}) {
        m_driver.show(action);
        visitSheet(button, false, "infoSheet", "infoClose");
    }
    qunsetenv("QUORLIN_UPDATE_HOST");
    qunsetenv("QUORLIN_PRODUCT_PAGE");
}

void WindowTour::visitWindow(const char *opens, const char *name)
{
    m_driver.trigger(opens);
    QWidget *opened = nullptr;
    m_driver.waitFor([&] {
        for (QWidget *each : QApplication::topLevelWidgets())
            if (each->isVisible() && each->objectName() == QLatin1String(name))
                opened = each;
        return opened != nullptr;
    });
    if (!opened)
        qFatal("%s opened nothing", opens);
    look(QString::fromLatin1(name), *opened);
    opened->close();
}

void WindowTour::windows()
{
    startAgain();
    m_driver.show("resize");
    addPictures();
    visitWindow("clocksAction", "clocksWindow");
    visitWindow("listPropertiesAction", "listPropertiesWindow");
    m_driver.trigger("selectAllAction");
    visitSheet("printAction", true, "printWindow", "printClose");
}

void WindowTour::manual()
{
    visitWindow("manualAction", "manualWindow");
}

// Panels are modal: they are visited by a timer.
void WindowTour::panels()
{
    m_driver.startAgain();
    m_driver.window().resize(m_size);
    addPictures();
    visitPanel("saveAsAction", [](QFileDialog &) {});
    visitPanel("addFolderAction", [](QFileDialog &panel) {
        for (const char *box : {"addFilter", "addDated"})
            panel.findChild<QAbstractButton *>(QString::fromLatin1(box))->click();
    });
}

void WindowTour::visitPanel(const char *opens, const std::function<void(QFileDialog &)> &prepare)
{
    bool isSeen = false;
    QTimer::singleShot(300, qApp, [&] {
        auto *panel = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (!panel)
            return;
        isSeen = true;
        prepare(*panel);
        look(QString::fromLatin1(opens) + QStringLiteral(", panel"), *panel);
        panel->reject();
    });
    m_driver.trigger(opens);
    if (!isSeen)
        qFatal("%s opened no panel", opens);
}
