#include "app/window/forms/own_controls.h"

#include "app/window/controls/angle_dial.h"
#include "app/window/controls/card_handle.h"
#include "app/window/controls/chip_label.h"
#include "app/window/controls/color_well.h"
#include "app/window/controls/column_scroll.h"
#include "app/window/controls/combo_box.h"
#include "app/window/controls/elided_label.h"
#include "app/window/controls/number_box.h"
#include "app/window/controls/page_list.h"
#include "app/window/controls/position_pad.h"
#include "app/window/controls/search_menu.h"
#include "app/window/controls/segmented_control.h"
#include "app/window/fields/keyword_edit.h"
#include "app/window/folders/folder_tree.h"
#include "app/window/folders/side_bar.h"
#include "app/window/log/log_table.h"
#include "app/window/log/run_list.h"
#include "app/window/manual/manual_view.h"
#include "app/window/pictures/date_box.h"
#include "app/window/pictures/picture_table.h"
#include "app/window/preview/compare_preview.h"
#include "app/window/preview/pages_view.h"
#include "app/window/preview/step_picture.h"
#include "app/window/properties/property_tree.h"
#include "app/window/slots/slot_list.h"
#include "app/window/web/page_sketch.h"

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
        {QStringLiteral("KeywordEdit"), made<KeywordEdit>},
        {QStringLiteral("LogTable"), made<LogTable>},
        {QStringLiteral("ManualView"), made<ManualView>},
        {QStringLiteral("PageList"), made<PageList>},
        {QStringLiteral("PagesView"), made<PagesView>},
        {QStringLiteral("PageSketch"), made<PageSketch>},
        {QStringLiteral("PictureTable"), made<PictureTable>},
        {QStringLiteral("PositionPad"), made<PositionPad>},
        {QStringLiteral("PropertyTree"), made<PropertyTree>},
        {QStringLiteral("QComboBox"), made<ComboBox>},
        {QStringLiteral("QDateEdit"), made<DateBox>},
        {QStringLiteral("QDoubleSpinBox"), made<NumberBox>},
        {QStringLiteral("RunList"), made<RunList>},
        {QStringLiteral("SearchMenu"), made<SearchMenu>},
        {QStringLiteral("SegmentedControl"), made<SegmentedControl>},
        {QStringLiteral("SideBar"), made<SideBar>},
        {QStringLiteral("SlotList"), made<SlotList>},
        {QStringLiteral("StepPicture"), made<StepPicture>},
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
