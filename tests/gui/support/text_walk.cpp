#include "tests/gui/support/text_walk.h"

#include "app/window/controls/segmented_control.h"
#include "app/window/pictures/picture_table.h"

#include <QAbstractButton>
#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAction>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTabBar>
#include <QTextDocumentFragment>

namespace {

/** @param names  columns of names that people gave, which are the same in every language */
QStringList textsOfModel(const QAbstractItemModel &model, const QList<int> &names = {})
{
    QStringList texts;
    for (int column = 0; column < model.columnCount(); ++column) {
        texts.append(model.headerData(column, Qt::Horizontal).toString());
        texts.append(model.headerData(column, Qt::Horizontal, Qt::ToolTipRole).toString());
        for (int row = 0; row < qMin(model.rowCount(), 200) && !names.contains(column); ++row)
            for (const int role : {Qt::DisplayRole, Qt::ToolTipRole, Qt::AccessibleTextRole})
                texts.append(model.index(row, column).data(role).toString());
    }
    return texts;
}

QStringList textsOfAction(const QAction &action)
{
    // The action that a button has for its menu has no text.
    return {QString(action.text()).remove(u'&'), action.toolTip().remove(u'&'), action.statusTip()};
}

QStringList textsOfSpin(const QWidget &widget)
{
    if (const auto *spin = qobject_cast<const QSpinBox *>(&widget))
        return {spin->prefix(), spin->suffix(), spin->specialValueText()};
    if (const auto *spin = qobject_cast<const QDoubleSpinBox *>(&widget))
        return {spin->prefix(), spin->suffix(), spin->specialValueText()};
    return {};
}

QStringList textsOf(const QWidget &widget)
{
    QStringList texts = {widget.toolTip(), widget.accessibleName(), widget.accessibleDescription(), widget.statusTip(),
                         widget.whatsThis()};
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        texts.append(Qt::mightBeRichText(label->text()) ? QTextDocumentFragment::fromHtml(label->text()).toPlainText()
                                                        : label->text());
    else if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        texts.append(QString(button->text()).remove(u'&'));
    else if (const auto *box = qobject_cast<const QComboBox *>(&widget))
        texts += textsOfModel(*box->model());
    else if (const auto *field = qobject_cast<const QLineEdit *>(&widget))
        texts.append(field->placeholderText());
    else if (const auto *tabs = qobject_cast<const QTabBar *>(&widget))
        for (int i = 0; i < tabs->count(); ++i)
            texts.append(tabs->tabText(i));
    else if (const auto *segments = qobject_cast<const window::SegmentedControl *>(&widget))
        texts += segments->segments();
    else if (const auto *text = qobject_cast<const QPlainTextEdit *>(&widget))
        texts += QStringList{text->isReadOnly() ? text->toPlainText() : QString(), text->placeholderText()};
    else if (const auto *view = qobject_cast<const QAbstractItemView *>(&widget); view && view->model())
        texts +=
            textsOfModel(*view->model(), qobject_cast<const window::PictureTable *>(view)
                                             ? QList<int>{window::PictureModel::Name, window::PictureModel::NewName}
                                             : QList<int>());
    return texts + textsOfSpin(widget);
}

} // namespace

QStringList shownTexts(const QWidget &window)
{
    QStringList found;
    const auto add = [&found](const QString &name, const QStringList &texts) {
        for (const QString &text : texts)
            if (!text.isEmpty())
                found.append(name + QStringLiteral(": ") + text);
    };
    // Names computed by the cards, and parts of views that their view has reported.
    static const QStringList others = {QStringLiteral("cardExample"), QStringLiteral("exampleNew"),
                                       QStringLiteral("exampleNow")};
    add(window.objectName(), textsOf(window) + QStringList{window.windowTitle()});
    for (const QAction *action : window.findChildren<QAction *>())
        add(action->objectName(), textsOfAction(*action));
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        const bool isShown = widget->isVisible() && widget->window() == &window;
        const bool isOther = others.contains(widget->objectName()) || qobject_cast<const QHeaderView *>(widget);
        if ((isShown && !isOther) || qobject_cast<const QMenu *>(widget))
            add(widget->objectName(), textsOf(*widget));
        if (const auto *menu = qobject_cast<const QMenu *>(widget))
            add(menu->objectName(), {QString(menu->title()).remove(u'&')});
    }
    found.removeDuplicates();
    return found;
}

QStringList untranslatedWords(const QStringList &texts, const QStringList &known)
{
    static const QRegularExpression word(QStringLiteral("\\p{L}{2,}"));
    // Paths, tokens and colours are no words.
    static const QRegularExpression noWords(QStringLiteral("/[^\\s\\[]*|\\{[^}]*\\}|#\\w+|\\bquorlin-\\w+"));
    QStringList found;
    for (const QString &text : texts) {
        int depth = 0;
        QString outside;
        const QString shown = text.mid(text.indexOf(QStringLiteral(": ")) + 2).remove(noWords);
        for (const QChar each : shown) {
            depth += each == u'[' ? 1 : 0;
            outside += depth > 0 ? QChar(u' ') : each;
            depth -= each == u']' ? 1 : 0;
        }
        for (auto match = word.globalMatch(outside); match.hasNext();)
            if (!known.contains(match.next().captured(), Qt::CaseInsensitive)) {
                found.append(QString(text).replace(u'\n', u' '));
                break;
            }
    }
    return found;
}
