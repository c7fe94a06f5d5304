#include "app/window/forms/ui_form.h"

#include "app/window/forms/own_controls.h"
#include "app/window/look/icons.h"

#include "platform/desktop/user_defaults.h"
#include "platform/foundation/raised.h"
#include "platform/values/fields.h"

#include <QAbstractButton>
#include <QAction>
#include <QActionGroup>
#include <QCloseEvent>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QGuiApplication>
#include <QHeaderView>
#include <QJSEngine>
#include <QLabel>
#include <QLayout>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QStyle>
#include <QTableView>
#include <QUiLoader>

namespace window {

namespace {

/** Creates the controls of this program besides those of the toolkit. */
class Loader : public QUiLoader
{
public:
    Loader() { setLanguageChangeEnabled(true); }

    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override
    {
        QWidget *widget = makeOwnControl(className, parent);
        if (!widget)
            return QUiLoader::createWidget(className, parent, name);
        widget->setObjectName(name);
        return widget;
    }
};

void collectPlaced(const QLayout *layout, QWidgetList &children)
{
    for (int i = 0; layout && i < layout->count(); ++i) {
        QLayoutItem *item = layout->itemAt(i);
        // A menu that opens as a separate window is not a tab stop.
        if (item->widget() && !item->widget()->isWindow())
            children.append(item->widget());
        else if (item->layout())
            collectPlaced(item->layout(), children);
    }
}

// The children of a widget in visual order: those of its layout by position, then those without a layout.
QWidgetList childrenAsTheyLie(const QWidget *widget)
{
    QWidgetList children;
    collectPlaced(widget->layout(), children);
    const QWidgetList all = widget->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *child : all)
        if (!children.contains(child) && !child->isWindow())
            children.append(child);
    return children;
}

void collectTabStops(QWidget *widget, QWidgetList &stops)
{
    if (!widget)
        return;
    const bool isStop = widget->focusPolicy() & Qt::TabFocus;
    if (isStop)
        stops.append(widget);
    // The header of a table comes after its rows.
    auto *table = qobject_cast<QTableView *>(widget);
    if (isStop && table && table->horizontalHeader()->focusPolicy() & Qt::TabFocus)
        stops.append(table->horizontalHeader());
    // The inside of a control such as a spin box is not our business.
    if (isStop)
        return;
    const QWidgetList children = childrenAsTheyLie(widget);
    for (QWidget *child : children)
        collectTabStops(child, stops);
}

// The menu itself, or that of a button, which is made when it is first needed.
QMenu *menuOf(QObject *object)
{
    auto *button = qobject_cast<QPushButton *>(object);
    if (button && !button->menu())
        button->setMenu(new QMenu(button));
    return button ? button->menu() : qobject_cast<QMenu *>(object);
}

// The shortcuts that a form gives an entry besides its first.
void takeFurtherKeys(const QWidget &root)
{
    const QList<QAction *> actions = root.findChildren<QAction *>();
    for (QAction *action : actions)
        if (const QString more = action->property("furtherKeys").toString(); !more.isEmpty())
            action->setShortcuts(action->shortcuts() + QKeySequence::listFromString(more));
}

// Labels whose form reserves room for several lines, so that nothing moves when their text needs more than one.
void keepLines(const QWidget &root)
{
    const QList<QLabel *> labels = root.findChildren<QLabel *>();
    for (QLabel *label : labels)
        if (const int lines = label->property("lines").toInt(); lines > 0)
            label->setMinimumHeight(lines * label->fontMetrics().lineSpacing());
}

} // namespace

Form::Form(QWidget *root, const QString &file, QObject *parent) : QObject(parent), m_root(root), m_file(file)
{
    root->installEventFilter(this);
    takeFurtherKeys(*root);
    keepLines(*root);
    // In a dialog Return presses the focused button, whatever its default button is.
    const QList<QPushButton *> buttons =
        qobject_cast<QDialog *>(root) ? root->findChildren<QPushButton *>() : QList<QPushButton *>();
    for (QPushButton *button : buttons)
        button->setAutoDefault(true);
}

platform::Result<Form *> Form::load(const QString &path, QWidget *parentWidget, QObject *owner)
{
    QFile file(path);
    const auto unreadable = [&path](const QString &why) {
        return platform::failure(platform::ErrorCode::Unreadable, QStringLiteral("%1: %2").arg(path, why));
    };
    if (!file.open(QIODevice::ReadOnly))
        return unreadable(file.errorString());
    Loader loader;
    QWidget *root = loader.load(&file, parentWidget);
    if (!root)
        return unreadable(loader.errorString());
    return new Form(root, path, owner);
}

QObject *Form::find(const QString &name, const char *kind)
{
    QObject *found = nullptr;
    if (m_root)
        found = m_root->objectName() == name ? m_root.data() : m_root->findChild<QObject *>(name);
    if (!found)
        throw platform::Raised::referenceError(
            QStringLiteral("%1 has no %2 \"%3\"").arg(m_file, QLatin1String(kind), name));
    return found;
}

QObject *Form::control(const QString &name)
{
    return find(name, "control");
}

QStringList Form::names() const
{
    QStringList all;
    const QList<QObject *> children = m_root ? m_root->findChildren<QObject *>() : QList<QObject *>();
    for (const QObject *child : children)
        if (!child->objectName().isEmpty() && !child->objectName().startsWith(QLatin1String("qt_")))
            all.append(child->objectName());
    return all;
}

void Form::place(const QString &name, Form *other)
{
    auto *container = qobject_cast<QWidget *>(find(name, "container"));
    const bool isSound = container && container->layout() && other && other->root();
    if (!isSound)
        return;
    // A window cannot be put into itself or one of its children.
    const bool isInside = other->root() == container || other->root()->isAncestorOf(container);
    if (isInside)
        throw platform::Raised::typeError(
            QStringLiteral("%1 cannot be placed in \"%2\", which lies in it").arg(m_file, name));
    container->layout()->addWidget(other->root());
}

bool Form::isShown() const
{
    const QWidget *root = m_root.data();
    return root != nullptr && !root->isHidden();
}

QString Form::title() const
{
    return m_root ? m_root->windowTitle() : QString();
}

void Form::setTitle(const QString &title)
{
    if (m_root)
        m_root->setWindowTitle(title);
}

void Form::setShown(bool shown)
{
    if (QWidget *root = m_root.data())
        root->setVisible(shown);
}

void Form::arrangeTabs()
{
    QWidgetList stops;
    collectTabStops(m_root, stops);
    for (int i = 1; i < stops.size(); ++i)
        QWidget::setTabOrder(stops.at(i - 1), stops.at(i));
}

void Form::setItems(const QString &name, const QStringList &texts, const QVariantList &values)
{
    auto *box = qobject_cast<QComboBox *>(find(name, "combo box"));
    if (!box)
        return;
    const QSignalBlocker quiet(box);
    box->clear();
    for (int i = 0; i < texts.size(); ++i) {
        if (texts.at(i) == QLatin1String("-"))
            box->insertSeparator(box->count());
        else
            box->addItem(texts.at(i), values.value(i));
    }
}

QVariant Form::value(const QString &name)
{
    const auto *box = qobject_cast<QComboBox *>(find(name, "combo box"));
    return box ? box->currentData() : QVariant();
}

bool Form::chooseValue(const QString &name, const QVariant &value)
{
    auto *box = qobject_cast<QComboBox *>(find(name, "combo box"));
    const int index = box ? box->findData(value) : -1;
    if (index < 0)
        return false;
    const QSignalBlocker quiet(box);
    box->setCurrentIndex(index);
    return true;
}

void Form::setIcon(const QString &name, const QString &iconName)
{
    QObject *target = find(name, "control");
    if (auto *button = qobject_cast<QAbstractButton *>(target))
        button->setIcon(icon(iconName));
    else if (auto *action = qobject_cast<QAction *>(target))
        action->setIcon(icon(iconName));
    else if (auto *label = qobject_cast<QLabel *>(target))
        label->setPixmap(icon(iconName).pixmap(label->minimumSize(), label->devicePixelRatioF()));
}

void Form::setLook(const QString &name, const QString &property, const QString &value)
{
    auto *widget = qobject_cast<QWidget *>(find(name, "control"));
    if (!widget)
        return;
    const QByteArray key = property.toUtf8();
    // A look is a word stored beside the properties of the control, which are set as fields.
    if (key.isEmpty() || key.startsWith('_') || widget->metaObject()->indexOfProperty(key) >= 0)
        throw platform::Raised::typeError(
            QStringLiteral("Expected the name of a look for property but received \"%1\"").arg(property));
    if (widget->property(key).toString() == value)
        return;
    widget->setProperty(key, value);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

void Form::setMenu(const QString &name, const QStringList &texts, const QVariantList &values,
                   const script::Function &chosen)
{
    QMenu *menu = menuOf(find(name, "menu"));
    if (!menu)
        return;
    menu->clear();
    menu->setEnabled(!texts.isEmpty());
    for (int i = 0; i < texts.size(); ++i) {
        if (texts.at(i) == QLatin1String("-")) {
            menu->addSeparator();
            continue;
        }
        const QVariant value = values.value(i);
        // An ampersand in a folder's name does not mark a mnemonic.
        QAction *action = menu->addAction(QString(texts.at(i)).replace(QLatin1Char('&'), QLatin1String("&&")));
        action->setEnabled(!value.isNull());
        connect(action, &QAction::triggered, this, [chosen, value] { chosen.call({value}); });
    }
}

void Form::setSplit(const QString &name, const QVariantList &sizes)
{
    const QList<int> pixels = platform::wholeNumbers(sizes, QStringLiteral("sizes"), 0);
    if (auto *splitter = qobject_cast<QSplitter *>(find(name, "splitter")))
        splitter->setSizes(pixels);
}

void Form::group(const QStringList &names)
{
    auto *actions = new QActionGroup(this);
    for (const QString &name : names)
        if (auto *action = qobject_cast<QAction *>(find(name, "action")))
            actions->addAction(action);
}

void Form::show()
{
    if (m_root)
        m_root->show();
}

void Form::raise()
{
    if (!m_root)
        return;
    m_root->raise();
    m_root->activateWindow();
}

void Form::close()
{
    if (m_root)
        m_root->close();
}

// At its first start a window may be larger than a small screen. The offscreen platform has no viewer to care.
static void fitToScreen(QWidget &window)
{
    if (QGuiApplication::platformName() != QLatin1String("offscreen"))
        window.resize(window.size().boundedTo(window.screen()->availableSize()));
}

void Form::remember(const QString &key)
{
    m_key = key;
    if (!m_root)
        return;
    const QByteArray geometry = platform::userDefault(key + QStringLiteral("Geometry")).toByteArray();
    if (!geometry.isEmpty())
        m_root->restoreGeometry(geometry);
    else
        fitToScreen(*m_root);
    const QList<QSplitter *> splitters = m_root->findChildren<QSplitter *>();
    for (QSplitter *splitter : splitters) {
        const QByteArray state = platform::userDefault(key + splitter->objectName()).toByteArray();
        if (!state.isEmpty())
            splitter->restoreState(state);
    }
}

void Form::keepLayout() const
{
    if (m_key.isEmpty() || !m_root)
        return;
    if (!m_root->property("fullScreen").toBool())
        platform::setUserDefault(m_key + QStringLiteral("Geometry"), m_root->saveGeometry());
    const QList<QSplitter *> splitters = m_root->findChildren<QSplitter *>();
    for (const QSplitter *splitter : splitters)
        platform::setUserDefault(m_key + splitter->objectName(), splitter->saveState());
}

void Form::alignFields(const QList<Form *> &forms)
{
    QList<QLabel *> fields;
    for (const Form *form : forms) {
        const QList<QLabel *> labels =
            form && form->root() ? form->root()->findChildren<QLabel *>() : QList<QLabel *>();
        for (QLabel *label : labels)
            if (label->property("role").toString() == QLatin1String("field"))
                fields.append(label);
    }
    int widest = 0;
    for (QLabel *label : fields) {
        label->setMinimumWidth(0);
        widest = qMax(widest, label->sizeHint().width());
    }
    for (QLabel *label : fields)
        label->setMinimumWidth(widest);
}

bool Form::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_root || event->type() != QEvent::Close)
        return QObject::eventFilter(watched, event);
    const QJSValue answer = m_onClose.call();
    if (answer.isBool() && !answer.toBool()) {
        event->ignore();
        return true;
    }
    keepLayout();
    Q_EMIT closing();
    return false;
}

} // namespace window
