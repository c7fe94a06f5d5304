#include "app/modules/offered_services.h"

namespace script {

void offerServices(ScriptEngine &scripts, const std::vector<ServiceEntry> &services, const QByteArray &module,
                   QObject *object)
{
    std::vector<ServiceEntry> ofModule;
    for (const ServiceEntry &entry : services) {
        if (entry.module != module)
            continue;
        ofModule.push_back(entry);
        if (entry.isOneObject)
            ofModule.back().object = object;
    }
    scripts.registerServices(module, ofModule);
}

} // namespace script
