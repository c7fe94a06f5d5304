#include "platform/controls/panels.h"

#include <utility>

namespace platform {
namespace {

std::unique_ptr<PanelProvider> &currentProvider()
{
    static std::unique_ptr<PanelProvider> provider;
    return provider;
}

} // namespace

PanelAnswer runPanel(const PanelRequest &request)
{
    PanelProvider *provider = currentProvider().get();
    return provider ? provider->run(request) : PanelAnswer();
}

std::unique_ptr<PanelProvider> setPanelProvider(std::unique_ptr<PanelProvider> provider)
{
    return std::exchange(currentProvider(), std::move(provider));
}

} // namespace platform
