#include "app/window/own_controls.h"

#include "app/window/angle_dial.h"
#include "app/window/card_handle.h"
#include "app/window/chip_label.h"
#include "app/window/color_well.h"
#include "app/window/column_scroll.h"
#include "app/window/combo_box.h"
#include "app/window/compare_preview.h"
#include "app/window/elided_label.h"
#include "app/window/folder_tree.h"
#include "app/window/log_table.h"
#include "app/window/manual_view.h"
#include "app/window/number_box.h"
#include "app/window/page_list.h"
#include "app/window/picture_table.h"
#include "app/window/position_pad.h"
#include "app/window/property_tree.h"
#include "app/window/run_list.h"
#include "app/window/search_menu.h"
#include "app/window/segmented_control.h"
#include "app/window/side_bar.h"
#include "app/window/slot_list.h"

#include <QHash>

namespace window {

namespace {

using Maker = QWidget *(*)(QWidget *parent);

template<typename T> QWidget *made(QWidget *parent)
{
    return new T(parent);
}

// One control a line.
const QHash<QString, Maker> &makers()
{
    static const QHash<QString, Maker> all = {
        {QStringLiteral("AngleDial"), made<AngleDial>},
        {QStringLiteral("CardHandle"), made<CardHandle>},
        {QStringLiteral("ChipLabel"), made<ChipLabel>},
        {QStringLiteral("ColorWell"), made<ColorWell>},
        {QStringLiteral("ColumnScroll"), made<ColumnScroll>},
        {QStringLiteral("ComparePreview"), made<ComparePreview>},
        {QStringLiteral("ElidedLabel"), made<ElidedLabel>},
        {QStringLiteral("FolderTree"), made<FolderTree>},
        {QStringLiteral("LogTable"), made<LogTable>},
        {QStringLiteral("ManualView"), made<ManualView>},
        {QStringLiteral("PageList"), made<PageList>},
        {QStringLiteral("PictureTable"), made<PictureTable>},
        {QStringLiteral("PositionPad"), made<PositionPad>},
        {QStringLiteral("PropertyTree"), made<PropertyTree>},
        {QStringLiteral("QComboBox"), made<ComboBox>},
        {QStringLiteral("QDoubleSpinBox"), made<NumberBox>},
        {QStringLiteral("RunList"), made<RunList>},
        {QStringLiteral("SearchMenu"), made<SearchMenu>},
        {QStringLiteral("SegmentedControl"), made<SegmentedControl>},
        {QStringLiteral("SideBar"), made<SideBar>},
        {QStringLiteral("SlotList"), made<SlotList>},
    };
    return all;
}

} // namespace

QWidget *makeOwnControl(const QString &className, QWidget *parent)
{
    const Maker maker = makers().value(className, nullptr);
    return maker ? maker(parent) : nullptr;
}

} // namespace window
