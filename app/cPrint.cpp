#include "app/cPrint.h"

#include "app/print_job.h"
#include "app/print_settings.h"

void cPrint::printService(const QString &path) const
{
    app::PrintSettings &settings = app::sharedPrintSettings();
    app::fitOnPage(settings);
    app::printPictures({path}, settings);
}
