#include "app/services/cPrint.h"

#include "app/printing/print_job.h"
#include "app/printing/print_settings.h"

void cPrint::printService(const QString &path) const
{
    app::PrintSettings &settings = app::sharedPrintSettings();
    app::fitOnPage(settings);
    app::printPictures({path}, settings);
}
