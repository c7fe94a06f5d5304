#include "app/script/registry.h"

#include "app/script/picture_object.h"

#include "image/ZtImageHandling.h"
#include "platform/desktop/stand_ins.h"

namespace script {
namespace {

template<typename T> ServiceEntry standIn()
{
    return serviceEntry<T>("quorlin/controls", true);
}

ServiceEntry pictures()
{
    ServiceEntry entry = serviceEntry<PictureObject>();
    entry.name = "Picture";
    entry.isMadeByScripts = false;
    return entry;
}

} // namespace

std::vector<ServiceEntry> registeredServices()
{
    return {
        serviceEntry<ZtImageHandling>(),      pictures(),
        standIn<platform::TextField>(),       standIn<platform::CheckBox>(),
        standIn<platform::ColorWell>(),       standIn<platform::SegmentedControl>(),
        standIn<platform::TabView>(),         standIn<platform::PopUpButton>(),
        standIn<platform::TextView>(),        standIn<platform::ProgressIndicator>(),
        standIn<platform::ArrayController>(), standIn<platform::TableView>(),
        standIn<platform::TreeController>(),  standIn<platform::Window>(),
    };
}

} // namespace script
