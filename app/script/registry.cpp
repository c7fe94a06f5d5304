#include "app/script/registry.h"

#include "app/seam/picture_object.h"
#include "app/services/Messenger.h"
#include "app/services/MyObjectControler.h"
#include "app/services/ZtFFullScreen.h"
#include "app/services/cAppUpdater.h"
#include "app/services/cPrint.h"
#include "app/services/cSheetControl.h"
#include "app/services/mainViewController.h"
#include "app/services/mainWindowClass.h"

#include "files/cNSFileHandling.h"
#include "files/cToolBox.h"
#include "image/ZtImageHandling.h"
#include "image/cMConversion.h"
#include "meta/cEditMetaData.h"
#include "meta/mMeta.h"
#include "platform/controls/save_panel.h"
#include "platform/controls/stand_ins.h"
#include "presets/Ztbookmarks.h"
#include "presets/dbViewController.h"
#include "text/cNSStringHandling.h"
#include "views/my2ndPhotoView.h"
#include "views/myMainPhotoView.h"

namespace script {
namespace {

template<typename T> ServiceEntry standIn()
{
    ServiceEntry entry = serviceEntry<T>("quorlin/controls", true);
    entry.isControl = true;
    return entry;
}

/** A class of windows or views, which outlets take. */
template<typename T> ServiceEntry onScreen()
{
    ServiceEntry entry = serviceEntry<T>();
    entry.isControl = true;
    return entry;
}

ServiceEntry pictures()
{
    ServiceEntry entry = serviceEntry<PictureObject>();
    entry.name = "Picture";
    entry.isMadeByScripts = false;
    return entry;
}

/** A field of cToolBox refers to one. */
ServiceEntry savePanels()
{
    ServiceEntry entry = serviceEntry<platform::SavePanel>();
    entry.isMadeByScripts = false;
    return entry;
}

} // namespace

// One class a line, so that two people who add one do not get a merge conflict.
// clang-format off
std::vector<ServiceEntry> registeredServices()
{
    return {
        serviceEntry<Messenger>(),
        serviceEntry<MyModel>(),
        serviceEntry<MyObjectControler>(),
        onScreen<ZtFFullScreen>(),
        serviceEntry<ZtImageHandling>(),
        serviceEntry<Ztbookmarks>(),
        serviceEntry<cNSStringHandling>(),
        serviceEntry<cAppUpdater>(),
        serviceEntry<cPrint>(),
        serviceEntry<cSheetControl>(),
        serviceEntry<cEditMetaData>(),
        serviceEntry<cMConversion>(),
        serviceEntry<cNSFileHandling>(),
        serviceEntry<cToolBox>(),
        serviceEntry<dbViewController>(),
        serviceEntry<mMeta>(),
        serviceEntry<mainViewController>(),
        serviceEntry<mainWindowClass>(),
        onScreen<my2ndPhotoView>(),
        onScreen<myMainPhotoView>(),
        pictures(),
        savePanels(),
        standIn<platform::TextField>(),
        standIn<platform::CheckBox>(),
        standIn<platform::ColorWell>(),
        standIn<platform::SegmentedControl>(),
        standIn<platform::TabView>(),
        standIn<platform::PopUpButton>(),
        standIn<platform::TextView>(),
        standIn<platform::ProgressIndicator>(),
        standIn<platform::ArrayController>(),
        standIn<platform::TableView>(),
        standIn<platform::TreeController>(),
        standIn<platform::Window>(),
    };
}
// clang-format on

} // namespace script
