#include "app/window/forms/widget_controls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QTabBar>
#include <QTabWidget>

namespace window {
namespace {

/** "&Size" reads "Size", "a && b" reads "a & b". */
QString withoutKeyMark(const QString &label)
{
    QString plain;
    for (qsizetype at = 0; at < label.size(); ++at) {
        if (label[at] == u'&' && at + 1 < label.size())
            ++at;
        plain += label[at];
    }
    return plain;
}

} // namespace

std::optional<QString> WidgetControls::selectedLabel(const QObject &control) const
{
    if (const auto *tabs = qobject_cast<const QTabWidget *>(&control))
        return withoutKeyMark(tabs->tabText(tabs->currentIndex()));
    if (const auto *bar = qobject_cast<const QTabBar *>(&control))
        return withoutKeyMark(bar->tabText(bar->currentIndex()));
    return std::nullopt;
}

std::optional<int> WidgetControls::state(const QObject &control) const
{
    const auto *box = qobject_cast<const QCheckBox *>(&control);
    if (!box)
        return std::nullopt;
    switch (box->checkState()) {
    case Qt::Unchecked:
        return 0;
    case Qt::PartiallyChecked:
        return -1;
    case Qt::Checked:
        return 1;
    }
    return std::nullopt;
}

std::optional<QStringList> WidgetControls::titles(const QObject &control) const
{
    const auto *menu = qobject_cast<const QComboBox *>(&control);
    if (!menu)
        return std::nullopt;
    QStringList texts;
    for (int index = 0; index < menu->count(); ++index)
        texts << menu->itemText(index);
    return texts;
}

bool WidgetControls::setTitles(QObject &control, const QStringList &titles) const
{
    auto *menu = qobject_cast<QComboBox *>(&control);
    if (!menu)
        return false;
    menu->clear();
    menu->addItems(titles);
    return true;
}

} // namespace window
