#include "app/window/forms/control_classes.h"

#include "app/window/controls/angle_dial.h"
#include "app/window/controls/card_handle.h"
#include "app/window/controls/chip_label.h"
#include "app/window/controls/color_well.h"
#include "app/window/controls/combo_box.h"
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
#include "app/window/pictures/drop_target.h"
#include "app/window/pictures/picture_table.h"
#include "app/window/preview/compare_preview.h"
#include "app/window/preview/pages_view.h"
#include "app/window/preview/step_picture.h"
#include "app/window/properties/property_tree.h"
#include "app/window/slots/slot_list.h"
#include "app/window/web/page_sketch.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QSpinBox>
#include <QStackedWidget>

namespace window {

namespace {

using script::Listed;
using script::ServiceEntry;

template<typename T> ServiceEntry control(const char *name)
{
    ServiceEntry entry = script::givenEntry<T>("quorlin/shell");
    entry.name = name;
    entry.isControl = true;
    entry.hasOneFacade = true;
    return entry;
}

/** A toolkit class: its own declarations, and the listed members. */
template<typename T> ServiceEntry listed(const char *name, const ServiceEntry *base, const Listed &members)
{
    ServiceEntry entry = control<T>(name);
    entry.listed = members;
    if (base)
        entry.base = std::make_shared<const ServiceEntry>(*base);
    return entry;
}

/** One of our control classes, under the name of the class. */
template<typename T> ServiceEntry own(const ServiceEntry &base)
{
    const QByteArray name = T::staticMetaObject.className();
    ServiceEntry entry = control<T>(name.mid(name.lastIndexOf(':') + 1));
    entry.base = std::make_shared<const ServiceEntry>(base);
    return entry;
}

// One class a line.
// clang-format off
std::vector<ServiceEntry> toolkitClasses(const ServiceEntry &widget, const ServiceEntry &button, const ServiceEntry &line)
{
    return {
        widget,
        button,
        line,
        listed<QAction>("Action", nullptr,
            {"text enabled visible checkable checked toolTip", "triggered() toggled(bool)", "trigger()"}),
        listed<QLabel>("Label", &widget, {"text"}),
        listed<QPlainTextEdit>("TextEdit", &widget,
            {"plainText placeholderText readOnly", "textChanged()", "insertPlainText(QString) selectAll()"}),
        listed<ComboBox>("ComboBox", &widget, {"count currentIndex", "activated(int)"}),
        listed<QSpinBox>("SpinBox", &widget, {"value minimum maximum suffix", "valueChanged(int)"}),
        listed<NumberBox>("NumberBox", &widget, {"value minimum maximum decimals suffix", "valueChanged(double)"}),
        listed<QProgressBar>("ProgressBar", &widget, {"value minimum maximum"}),
        listed<QStackedWidget>("Stack", &widget, {"count currentIndex"}),
    };
}

std::vector<ServiceEntry> ownClasses(const ServiceEntry &widget, const ServiceEntry &button, const ServiceEntry &line)
{
    return {
        own<AngleDial>(widget),
        own<CardHandle>(widget),
        own<ChipLabel>(widget),
        own<ColorWell>(button),
        own<ComparePreview>(widget),
        own<DateBox>(widget),
        own<DropTarget>(widget),
        own<FolderTree>(widget),
        own<KeywordEdit>(line),
        own<LogTable>(widget),
        own<ManualView>(widget),
        own<PageList>(widget),
        own<PagesView>(widget),
        own<PageSketch>(widget),
        own<PictureTable>(widget),
        own<PositionPad>(widget),
        own<PropertyTree>(widget),
        own<RunList>(widget),
        own<SearchMenu>(widget),
        own<SegmentedControl>(widget),
        own<SideBar>(widget),
        own<SlotList>(widget),
        own<StepPicture>(widget),
    };
}
// clang-format on

} // namespace

std::vector<ServiceEntry> controlClasses()
{
    const ServiceEntry widget = listed<QWidget>(
        "Widget", nullptr, {"visible enabled focus toolTip accessibleName accessibleDescription", "", "setFocus()"});
    const ServiceEntry button =
        listed<QAbstractButton>("Button", &widget, {"text checkable checked", "clicked() toggled(bool)", "click()"});
    const ServiceEntry line = listed<QLineEdit>(
        "LineEdit", &widget,
        {"text cursorPosition placeholderText readOnly",
         "textChanged(QString) textEdited(QString) cursorPositionChanged(int,int) returnPressed()", "selectAll()"});
    std::vector<ServiceEntry> all = toolkitClasses(widget, button, line);
    const std::vector<ServiceEntry> ours = ownClasses(widget, button, line);
    all.insert(all.end(), ours.begin(), ours.end());
    return all;
}

} // namespace window
